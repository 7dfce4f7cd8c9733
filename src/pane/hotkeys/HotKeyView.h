// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "platform/CoreFoundation/CFString.h"
#include "src/store/prefs.h"

class HotKeyView;

/// Is told of captures and of every change of a hot key.
class HotKeyViewTarget {
public:
    /// A capture into the view has begun; null: it is over.
    virtual void setTargetHotKey(HotKeyView* view) = 0;
    virtual void changed(ChangeMask changes) = 0;

protected:
    ~HotKeyViewTarget() = default;
};

/// Shows one of the record's hot keys and captures a new one. While it has the focus it takes every
/// key. The next key, with the modifiers held, becomes the hot key.
class HotKeyView final : public NSView, public NSAccessibilityStaticText {
public:
    HotKeyView() = default;
    ~HotKeyView() override;

    /// Not owned. Must be set before the view is shown.
    void setTarget(HotKeyViewTarget* target) { target_ = target; }

    /// The index in the record's hotKeys. It is -1 at first; then nothing is shown or stored.
    void setIndex(int index);

    int index() const { return index_; }

    /// Begins a capture for `starter`, which gets the focus back afterwards.
    void startEditing(NSView* starter);
    /// Ends a capture without storing anything. Does nothing without a capture.
    void cancelEditing();
    /// Stores the key with these Carbon modifiers.
    void setHotKey(UInt32 modifiers, UInt16 keyCode);
    /// The stored hot key's modifiers. 0 before an index is set.
    UInt32 modifiers() const;
    /// Unassigns the hot key. The key code stays in the record, with a bit that marks it.
    void setToNone();
    /// The same, but the caller reports the change.
    void unassign();
    void setToDefault();
    /// Sets the hot key to this value.
    void restore(const HotKey& hotKey);

    /// The key code of the stored hot key; negative for none, and before an index is set.
    SInt32 keyCode() const;
    /// The hot key in words. Null when there is nothing to show.
    CFRef<CFString> combination() const;

    bool acceptsFirstResponder() const override { return true; }

    bool becomeFirstResponder() override;
    bool resignFirstResponder() override;
    void mouseDown(NSEvent* event) override;
    void keyDown(NSEvent* event) override;
    bool performKeyEquivalent(NSEvent* event) override;
    void flagsChanged(NSEvent* event) override;
    void drawRect(const NSRect& dirtyRect) override;

    std::string accessibilityValue() const override;
    std::string accessibilityStatus() const override;

private:
    /// What it shows now. Null for nothing.
    CFRef<CFString> text() const;
    void redraw();
    void reportChange();

    HotKeyViewTarget* target_ = nullptr;
    int index_ = -1;
    NSView* starter_ = nullptr;  ///< of the capture, unless it was a click
    void* hotKeyMode_ = nullptr; ///< during a capture
};
