// SPDX-License-Identifier: MIT
#pragma once

class HotKeyView;
class NSButton;
class NSMenuItem;
class NSObject;
class NSPopUpButton;
class NSTextField;

/// Builds a hot key without a key press, for users without a keyboard: from check boxes for four
/// modifiers and a menu of keys. The interface file fills the public fields; none is owned.
class HotKeyBuilder {
public:
    NSTextField* builderTitle = nullptr;
    NSButton* builderCommand = nullptr;
    NSButton* builderControl = nullptr;
    NSButton* builderShift = nullptr;
    NSButton* builderOption = nullptr;
    NSPopUpButton* builderKey = nullptr;

    /// Fills the menu. Its items send buildHotKey: to `menuTarget`, with the key code as tag.
    void setup(NSObject& menuTarget);
    /// Ends the building of a hot key.
    void load();
    /// From now on choices set the hot key of the view, which isn't owned.
    void begin(HotKeyView& view);
    void take(const NSMenuItem& key);

private:
    void enable(bool enabled);

    HotKeyView* view_ = nullptr; ///< whose hot key is being built, or null
};
