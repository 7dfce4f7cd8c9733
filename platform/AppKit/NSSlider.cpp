// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSSlider.h"

#include "platform/AppKit/detail/SliderWidget.h"

#include <QVariant>

namespace {

double limit(const QSlider& slider, const char* property, int otherwise) {
    const QVariant value = slider.property(property);
    return value.isValid() ? value.toDouble() : otherwise;
}

const SliderWidget& sliderOf(const NSSlider& view) {
    return *static_cast<const SliderWidget*>(view.widget());
}

} // namespace

void NSSlider::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    auto* slider = static_cast<SliderWidget*>(widget);
    slider->setLimits(limit(*slider, "minValue", slider->minimum()),
                      limit(*slider, "maxValue", slider->maximum()));
    QObject::connect(slider, &QSlider::valueChanged, slider, [this] { sendAction(); });
}

double NSSlider::minValue() const {
    return sliderOf(*this).minValue();
}

double NSSlider::maxValue() const {
    return sliderOf(*this).maxValue();
}

double NSSlider::doubleValue() const {
    return sliderOf(*this).doubleValue();
}

void NSSlider::setDoubleValue(double value) {
    static_cast<SliderWidget*>(widget())->setDoubleValue(value);
}
