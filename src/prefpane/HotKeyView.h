// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "platform/CoreFoundation/CFString.h"
#include "src/prefs.h"

class HotKeyView;

/// Told of captures, and of every change of a hot key.
class HotKeyViewTarget {
public:
    /// A capture into the view began; null: it is over.
    virtual void setTargetHotKey(HotKeyView* view) = 0;
    virtual void changed(ChangeMask changes) = 0;

protected:
    ~HotKeyViewTarget() = default;
};

/// Shows one of the record's hot keys and captures a new one: while the keyboard acts on it, the
/// next key becomes the hot key, with the modifiers that are held then. It takes every key.
class HotKeyView final : public NSView, public NSAccessibilityStaticText {
public:
    HotKeyView() = default;
    ~HotKeyView() override;

    /// Not owned; given before the view is in sight.
    void setTarget(HotKeyViewTarget* target) { target_ = target; }

    /// The place in the record's hotKeys; -1 until one is given, when nothing is shown or stored.
    void setIndex(int index);

    int index() const { return index_; }

    /// Begins a capture for `starter`, which gets the keyboard back when it is over.
    void startEditing(NSView* starter);
    /// Ends a capture without storing anything; outside of one nothing happens.
    void cancelEditing();
    /// Stores the key, with the modifiers of Carbon's that are to be held with it.
    void setHotKey(UInt32 modifiers, UInt16 keyCode);
    /// Of the hot key as stored; 0 before an index is given.
    UInt32 modifiers() const;
    /// Takes the hot key away. What it was stays in the record, marked.
    void setToNone();
    void setToDefault();
    /// Makes the hot key this one, whatever it is.
    void restore(const HotKey& hotKey);

    /// The hot key in words; null when there is nothing to show.
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
    /// What it shows now; null for nothing.
    CFRef<CFString> text() const;
    void redraw();
    void reportChange();

    HotKeyViewTarget* target_ = nullptr;
    int index_ = -1;
    NSView* starter_ = nullptr;  ///< of the capture, if it wasn't a click
    void* hotKeyMode_ = nullptr; ///< during a capture
};
