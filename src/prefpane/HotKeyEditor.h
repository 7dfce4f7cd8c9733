#pragma once

#include "src/prefs.h"

#include <array>

class HotKeyView;
class HotKeyViewTarget;
class NSButton;
class NSMenuItem;
class NSObject;
class NSPopUpButton;
class NSTextField;

/// A hot key's view and what stands beside it.
struct HotKeyRow {
    HotKeyView* view = nullptr;
    NSPopUpButton* menu = nullptr;
    NSTextField* note = nullptr;
};

/// The wrangler's part for the hot keys: a row each, and the prompts, of which one group or the
/// other shows. The interface file fills the public fields; none is owned.
class HotKeyEditor {
public:
    HotKeyRow masterOnOff, scan, cancelScan, showPreferences, scan2;
    NSTextField* notEditingKeyPrompt = nullptr;
    NSTextField* editingKeyPrompt1 = nullptr;
    NSButton* cancelEditBtn = nullptr;
    NSButton* defaultKeyBtn = nullptr;
    NSButton* noKeyBtn = nullptr;

    /// Gives the views their places in the record, and the menus their items, which send
    /// captureHotKey:, removeHotKey: and resetHotKey: to `menuTarget`. None is owned.
    void setup(HotKeyViewTarget& viewTarget, NSObject& menuTarget);
    /// Shows the record's hot keys, with no capture under way.
    void load();

    void setHotKeyToNone();
    void setHotKeyToDefault();
    void cancelHotKeyEdit();

    void captureHotKey(const NSMenuItem& sender);
    void removeHotKey(const NSMenuItem& sender);
    void resetHotKey(const NSMenuItem& sender);

    void setTargetHotKey(HotKeyView* view);
    /// Shows the group of prompts that goes with the target.
    void updateHotKeyUI();
    /// Says beside each hot key which others are the same: nothing keeps a user from that, but the
    /// agent can't tell them apart.
    void updateHotKeyNotes();

private:
    /// In the record's order.
    std::array<HotKeyRow*, kNumHotKeys> rows();
    HotKeyRow& rowOf(const NSMenuItem& item);

    HotKeyView* targetHotKey_ = nullptr; ///< that is captured into, or null
};
