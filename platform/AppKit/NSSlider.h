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

    double minValue() const { return minValue_; }

    double maxValue() const { return maxValue_; }

    /// What was last set, unrounded, or what the user chose since.
    double doubleValue() const { return value_; }

    /// A value outside the range is taken as the nearer limit.
    void setDoubleValue(double value);

    /// The same, as if the user had moved the slider there: sends the action.
    void chooseDoubleValue(double value);

private:
    void moved(int position);

    double minValue_ = 0;
    double maxValue_ = 1;
    double value_ = 0;
};
