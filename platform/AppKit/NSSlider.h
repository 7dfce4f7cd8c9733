// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

/// A slider over a range of doubles. Its limits are the dynamic properties minValue and maxValue,
/// or else the widget's own whole numbers. The widget's range is the number of steps a user can
/// reach. Its single and page steps are those of the arrow and page keys. The wheel doesn't move
/// it, so that it can scroll the page. A click beside the knob moves the knob there.
///
/// A screen reader says the real value, as the text of the label beside it with the outlet `label`.
class NSSlider final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    double minValue() const;
    double maxValue() const;

    /// What was last set, unrounded, or what the user chose since then.
    double doubleValue() const;

    /// A value outside the range becomes the nearer limit.
    void setDoubleValue(double value);
};
