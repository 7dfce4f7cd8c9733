// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

/// A slider over a range of doubles. The form's properties minValue and maxValue are its ends;
/// without them the widget's own whole numbers are. The widget's numbers say how many places a user
/// can reach, and its single and page step what the arrow and page keys do. The wheel doesn't move
/// it, so that a page can be scrolled past it. A click beside its knob takes the knob there.
///
/// A screen reader hears the real value, and as its text that of the label beside the slider that
/// is the outlet `label`.
class NSSlider final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    double minValue() const;
    double maxValue() const;

    /// What was last set, unrounded, or what the user chose since.
    double doubleValue() const;

    /// A value outside the range is taken as the nearer limit.
    void setDoubleValue(double value);
};
