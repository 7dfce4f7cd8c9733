#include "platform/AppKit/NSSlider.h"

#include "platform/AppKit/SliderWidget.h"

#include <QSignalBlocker>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

double limit(const QWidget& widget, const char* property, int otherwise) {
    const QVariant value = widget.property(property);
    return value.isValid() ? value.toDouble() : otherwise;
}

} // namespace

void NSSlider::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    auto* slider = static_cast<SliderWidget*>(widget);
    slider->view = this;
    minValue_ = limit(*slider, "minValue", slider->minimum());
    maxValue_ = limit(*slider, "maxValue", slider->maximum());
    value_ = minValue_;
    QObject::connect(slider, &QSlider::valueChanged, slider,
                     [this](int position) { moved(position); });
}

void NSSlider::setDoubleValue(double value) {
    auto* slider = static_cast<SliderWidget*>(widget());
    value_ = std::clamp(value, minValue_, maxValue_);
    const double part = (value_ - minValue_) / (maxValue_ - minValue_);
    const int steps = slider->maximum() - slider->minimum();
    const QSignalBlocker blocker(slider);
    slider->setValue(slider->minimum() + static_cast<int>(std::lround(part * steps)));
}

void NSSlider::chooseDoubleValue(double value) {
    setDoubleValue(value);
    sendAction();
}

void NSSlider::moved(int position) {
    const auto* slider = static_cast<const SliderWidget*>(widget());
    const double steps = slider->maximum() - slider->minimum();
    const double step = position - slider->minimum();
    // Divided last, so that a tenth is the double nearest to it.
    const double value = (minValue_ * (steps - step) + maxValue_ * step) / steps;
    value_ = step == steps ? maxValue_ : std::max(value, minValue_);
    sendAction();
}
