// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"
#include "src/tryout/session.h"

/// What the view's presses go to. Moments are those of the events themselves, in seconds of
/// GetCurrentEventTime's clock.
class TryViewTarget {
public:
    virtual void pressed(double moment) = 0;
    virtual void released(double moment) = 0;
    /// A press that assistive technology made; it has no length.
    virtual void acted(double moment) = 0;
    virtual void left() = 0;

protected:
    ~TryViewTarget() = default;
};

/// The range that the line of a try sweeps, from top to bottom, with the mark; in the end the
/// places where it was stopped. The line looks as the settings say, and is drawn where it is when
/// it is drawn. Any key but Tab, any mouse button and the accessibility action are presses; Escape
/// leaves.
class TryView final : public NSView, public NSAccessibilityButton {
public:
    /// Not owned; neither may be null once the view is shown.
    void setTarget(TryViewTarget* target) { target_ = target; }

    /// Lengths are shown as large as they are, whatever becomes of the view's height: `scale` is in
    /// points a millimetre.
    void setSession(const tryout::Session* session, double scale);

    /// What a screen reader says of it, in UTF-8; when it changes, a running one speaks it at once.
    /// The title stays, or it would be heard twice.
    void setSaying(const std::string& saying);

    /// A frame is due: what has moved since the last one is drawn again.
    void showFrame();

    void drawRect(const NSRect& dirtyRect) override;
    void mouseDown(NSEvent* event) override;
    void mouseUp(NSEvent* event) override;
    void otherMouseDown(NSEvent* event) override;
    void otherMouseUp(NSEvent* event) override;
    void keyDown(NSEvent* event) override;
    void keyUp(NSEvent* event) override;
    bool performKeyEquivalent(NSEvent* event) override;

    bool acceptsFirstResponder() const override { return true; }

    std::string accessibilityTitle() const override;

    /// What was said last, and where the mark stands.
    std::string accessibilityValue() const override;

    void accessibilityPerformPress() override;

private:
    NSRect lineAt(double moment) const;
    NSRect bandAround(double position) const;
    void drawMark() const;
    void drawPlaces() const;
    bool showsLine() const;

    TryViewTarget* target_ = nullptr;
    const tryout::Session* session_ = nullptr;
    float scale_ = 1; ///< points a millimetre
    std::string saying_;
    NSRect shown_ = {}; ///< the line, as it was drawn last
};
