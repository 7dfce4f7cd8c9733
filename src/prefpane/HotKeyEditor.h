// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/EventTimers.h"
#include "src/prefpane/HotKeyBuilder.h"
#include "src/prefs.h"

#include <array>
#include <vector>

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
    HotKeyBuilder builder;

    HotKeyEditor() = default;
    ~HotKeyEditor();
    HotKeyEditor(const HotKeyEditor&) = delete;
    HotKeyEditor& operator=(const HotKeyEditor&) = delete;

    /// Gives the views their places in the record, and the menus their items, which send their
    /// actions to `menuTarget`. None is owned.
    void setup(HotKeyViewTarget& viewTarget, NSObject& menuTarget);
    /// Shows the record's hot keys, with no capture under way.
    void load();

    void setHotKeyToNone();
    void setHotKeyToDefault();
    void cancelHotKeyEdit();

    void captureHotKey(const NSMenuItem& sender);
    void removeHotKey(const NSMenuItem& sender);
    void resetHotKey(const NSMenuItem& sender);
    void chooseHotKey(const NSMenuItem& sender);
    /// Takes the keys away from every other hot key that has them, too.
    void claimHotKey(const NSMenuItem& sender);
    /// Puts back what the hot key was before its last change.
    void restoreHotKey(const NSMenuItem& sender);

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
    /// Which of the others the agent would take for this hot key.
    std::vector<std::size_t> sameAs(std::size_t index) const;
    void noticeChanges();
    /// Says in the prompt how long a capture still takes keys from everyone, and ends it then.
    void countDown();
    void stopCountingDown();

    NSObject* menuTarget_ = nullptr;              ///< not owned
    HotKeyView* targetHotKey_ = nullptr;          ///< that is captured into, or null
    EventLoopTimerRef timer_ = nullptr;           ///< during a capture
    int secondsLeft_ = 0;                         ///< of the capture
    std::array<HotKey, kNumHotKeys> now_ = {};    ///< as last shown
    std::array<HotKey, kNumHotKeys> before_ = {}; ///< what each was before its last change
};
