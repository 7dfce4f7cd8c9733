// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/EventTimers.h"
#include "src/controls/NumberController.h"
#include "src/link/Daemon.h"
#include "src/pane/hotkeys/HotKeyBuilder.h"
#include "src/pane/hotkeys/HotKeyView.h"
#include "src/store/prefs.h"

#include <array>
#include <vector>

class NSButton;
class NSMenuItem;
class NSObject;
class NSPopUpButton;
class NSTextField;

/// A hot key's view and the controls beside it.
struct HotKeyRow {
    HotKeyView* view = nullptr;
    NSPopUpButton* menu = nullptr;
    NSTextField* note = nullptr;
};

/// The wrangler's part for hot keys: a row for each, and two groups of prompts, one of which is
/// shown. The interface file fills the public fields; none is owned.
class HotKeyEditor final : public HotKeyViewTarget {
public:
    HotKeyRow masterOnOff, scan, cancelScan, showPreferences, scan2;
    NSTextField* notEditingKeyPrompt = nullptr;
    NSTextField* editingKeyPrompt1 = nullptr;
    NSButton* cancelEditBtn = nullptr;
    NSButton* defaultKeyBtn = nullptr;
    NSButton* noKeyBtn = nullptr;
    HotKeyBuilder builder;

    /// `changes` is told of every edit; not owned.
    explicit HotKeyEditor(NumberChangeTarget& changes) : changes_(changes) {}

    ~HotKeyEditor();
    HotKeyEditor(const HotKeyEditor&) = delete;
    HotKeyEditor& operator=(const HotKeyEditor&) = delete;

    /// Assigns each view its index in the record, and each menu its items. They send their actions
    /// to `menuTarget`. Owns none of them.
    void setup(NSObject& menuTarget);
    /// Shows the record's hot keys, with no capture under way.
    void load();

    void setHotKeyToNone();
    void setHotKeyToDefault();
    void cancelHotKeyEdit();

    void captureHotKey(const NSMenuItem& sender);
    void removeHotKey(const NSMenuItem& sender);
    void resetHotKey(const NSMenuItem& sender);
    void chooseHotKey(const NSMenuItem& sender);
    /// Removes the keys from every other hot key that has them, as one change.
    void claimHotKey(const NSMenuItem& sender);
    /// Restores the hot key to its value before the last change.
    void restoreHotKey(const NSMenuItem& sender);

    void setTargetHotKey(HotKeyView* view) override;

    void changed(ChangeMask changes) override { changes_.changed(changes); }

    /// Shows the group of prompts that fits the target.
    void updateHotKeyUI();
    /// Shows beside each hot key what the keyboard calls it, and which others are the same. A user
    /// may set that, but the agent can't tell them apart.
    void updateHotKeyNotes();

private:
    /// In the record's order.
    std::array<HotKeyRow*, kNumHotKeys> rows();
    HotKeyRow& rowOf(const NSMenuItem& item);
    /// The other hot keys that the agent can't tell from this one.
    std::vector<std::size_t> sameAs(std::size_t index) const;
    std::string sameKeysText(std::size_t index);
    void noticeChanges();
    /// Shows how long the capture still keeps keys from other programs, and ends it then. The time
    /// stands while the window is inactive: it gets no key then, and the others have theirs.
    void countDown();
    void stopCountingDown();

    NumberChangeTarget& changes_;
    NSObject* menuTarget_ = nullptr;              ///< not owned
    HotKeyView* targetHotKey_ = nullptr;          ///< captures, or null
    AgentHold agent_;                             ///< during a capture in an active window
    EventLoopTimerRef timer_ = nullptr;           ///< during a capture
    int secondsLeft_ = 0;                         ///< of the capture
    std::array<HotKey, kNumHotKeys> now_ = {};    ///< as last shown
    std::array<HotKey, kNumHotKeys> before_ = {}; ///< the value of each before its last change
};
