// SPDX-License-Identifier: MIT
#pragma once

#include "src/switchview.h"
#include "src/tryout/session.h"

#include <string>

/// What the view's presses go to, as SwitchView has them.
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
/// it is drawn. Escape leaves.
class TryView final : public SwitchView {
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
    bool performKeyEquivalent(NSEvent* event) override;

    std::string accessibilityTitle() const override;

    /// What was said last, and where the mark stands.
    std::string accessibilityValue() const override;

private:
    void pressed(double moment) override { target_->pressed(moment); }

    void released(double moment) override { target_->released(moment); }

    void acted(double moment) override { target_->acted(moment); }

    void escaped(NSEvent&) override { target_->left(); }

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
