// SPDX-License-Identifier: MIT
#pragma once

#include "src/controls/switchview.h"
#include "src/tryout/session.h"

#include <string>

/// Receives the view's presses, as in SwitchView.
class TryViewTarget {
public:
    virtual void pressed(double moment) = 0;
    virtual void released(double moment) = 0;
    /// Assistive technology made a press, which has no length.
    virtual void acted(double moment) = 0;
    virtual void left() = 0;

protected:
    ~TryViewTarget() = default;
};

/// The range that the line of a try sweeps, from top to bottom, with the mark. At the end it shows
/// where the line was stopped. The line has the look of the settings and is drawn where it is at
/// that moment. Escape leaves.
class TryView final : public SwitchView {
public:
    /// Not owned. Both must be set before the view is shown.
    void setTarget(TryViewTarget* target) { target_ = target; }

    /// Lengths are shown in their true size, whatever the view's height. `scale` is in points per
    /// millimetre.
    void setSession(const tryout::Session* session, double scale);

    /// The view's description for screen readers, in UTF-8. When it changes, a running one says it
    /// at once. The name stays the same, or it would be said twice.
    void setSaying(const std::string& saying);

    /// A frame is due: redraws what has moved since the last one.
    void showFrame();

    void drawRect(const NSRect& dirtyRect) override;
    bool performKeyEquivalent(NSEvent* event) override;

    std::string accessibilityTitle() const override;

    /// What was said last, and where the mark is.
    std::string accessibilityValue() const override;

private:
    void pressed(double moment) override { target_->pressed(moment); }

    void released(double moment) override { target_->released(moment); }

    void acted(double moment) override { target_->acted(moment); }

    void escaped(NSEvent&) override { target_->left(); }

    NSRect lineAt(double moment) const;
    NSRect bandAround(double position) const;
    NSRect holdBar() const;
    void showHold(int seconds);
    void drawMark() const;
    void drawHold() const;
    void drawPlaces() const;
    bool showsLine() const;

    TryViewTarget* target_ = nullptr;
    const tryout::Session* session_ = nullptr;
    float scale_ = 1; ///< points a millimetre
    std::string saying_;
    NSRect shown_ = {}; ///< the line as last drawn
    int shownHold_ = 0; ///< seconds of a held press, as last drawn
};
