// SPDX-License-Identifier: MIT
#pragma once

class HotKeyView;
class NSButton;
class NSMenuItem;
class NSObject;
class NSPopUpButton;
class NSTextField;

/// Builds a hot key without a key press: from four boxes for the keys to hold, and a menu of keys.
/// For those who have no keyboard. The interface file fills the public fields; none is owned.
class HotKeyBuilder {
public:
    NSTextField* builderTitle = nullptr;
    NSButton* builderCommand = nullptr;
    NSButton* builderControl = nullptr;
    NSButton* builderShift = nullptr;
    NSButton* builderOption = nullptr;
    NSPopUpButton* builderKey = nullptr;

    /// Fills the menu, whose items send buildHotKey: to `menuTarget`, with the key's code as tag.
    void setup(NSObject& menuTarget);
    /// No hot key is being built.
    void load();
    /// From now on what is chosen becomes the hot key of the view, which isn't owned.
    void begin(HotKeyView& view);
    void take(const NSMenuItem& key);

private:
    void enable(bool enabled);

    HotKeyView* view_ = nullptr; ///< whose hot key is being built, or null
};
