// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

/// A slider over a range of doubles. The form gives the range as the dynamic properties minValue
/// and maxValue; the widget's own whole-number range says how many steps a user can reach between
/// them, its single and page step what the arrow and page keys do. Without those properties the
/// widget's own range is the range of values. The wheel doesn't move it, so that a page can be
/// scrolled past it; a click beside its knob takes the knob there.
///
/// A screen reader hears the real value, and as its text the one of the value label: the label
/// beside the slider that is an outlet and isn't the caption of a control.
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
