// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSPopUpButton.h"

class HotKeyView;
class NSButton;
class NSObject;
class NSTextField;

/// Builds a hot key without a key press, for users without a keyboard: from check boxes for four
/// modifiers and a menu of keys. The interface file fills the public fields; none is owned.
class HotKeyBuilder final : public NSMenuDelegate {
public:
    NSView* builderRow = nullptr; ///< around the others; open while a hot key is built
    NSTextField* builderTitle = nullptr;
    NSButton* builderCommand = nullptr;
    NSButton* builderControl = nullptr;
    NSButton* builderShift = nullptr;
    NSButton* builderOption = nullptr;
    NSPopUpButton* builderKey = nullptr;

    /// The items of the menu will send buildHotKey: to `menuTarget`, with the key code as tag.
    void setup(NSObject& menuTarget);
    /// Fills the menu with the keys by the names that they have now.
    void menuNeedsUpdate(NSPopUpButton* menu) override;
    /// Ends the building of a hot key.
    void load();
    /// From now on choices set the hot key of the view, which isn't owned.
    void begin(HotKeyView& view);
    void take(const NSMenuItem& key);

private:
    NSObject* menuTarget_ = nullptr; ///< not owned
    HotKeyView* view_ = nullptr;     ///< whose hot key is being built, or null
};
