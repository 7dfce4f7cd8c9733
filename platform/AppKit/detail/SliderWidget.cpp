// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SliderWidget.h"

#include "platform/AppKit/detail/ShownText.h"
#include "platform/AppKit/detail/SliderAccessibility.h"

#include <QMouseEvent>
#include <QSignalBlocker>
#include <QStyleOptionSlider>
#include <QVariant>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace {

constexpr int kMinimumHeight = 24; // points that a finger or a trembling hand needs

} // namespace

SliderWidget::SliderWidget(QWidget* parent) : QSlider(parent) {
    installSliderAccessibility();
    setMinimumHeight(kMinimumHeight);
}

void SliderWidget::setLimits(double minValue, double maxValue) {
    minValue_ = minValue;
    maxValue_ = maxValue;
    doubleValue_ = valueAt(value());
}

void SliderWidget::setDoubleValue(double value) {
    const double limited = std::min(std::max(value, minValue_), maxValue_);
    const QSignalBlocker blocker(this);
    setValue(positionOf(limited));
    doubleValue_ = limited;
}

void SliderWidget::moveTo(double value) {
    setValue(positionOf(value));
}

QSize SliderWidget::sizeHint() const {
    const QSize own = QSlider::sizeHint();
    return preferredWidth_ ? QSize(preferredWidth_, own.height()) : own;
}

int SliderWidget::positionOf(double value) const {
    const double part = (value - minValue_) / (maxValue_ - minValue_);
    return minimum() + static_cast<int>(std::lround(part * (maximum() - minimum())));
}

double SliderWidget::valueAt(int position) const {
    if (position >= maximum())
        return maxValue_;
    const double steps = maximum() - minimum();
    const double step = position - minimum();
    // The division comes last, so that a tenth is the double nearest to it.
    return (minValue_ * (steps - step) + maxValue_ * step) / steps;
}

void SliderWidget::sliderChange(SliderChange change) {
    if (change == SliderValueChange)
        doubleValue_ = valueAt(value());
    QSlider::sliderChange(change);
}

QString SliderWidget::valueText() const {
    for (const auto* each : parent()->findChildren<QWidget*>(Qt::FindDirectChildrenOnly))
        if (each->property("outlet") == QLatin1String("label"))
            return shownText(each).trimmed();
    return {};
}

void SliderWidget::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

void SliderWidget::mousePressEvent(QMouseEvent* event) {
    QStyleOptionSlider option;
    initStyleOption(&option);
    const auto part = style()->hitTestComplexControl(QStyle::CC_Slider, &option,
                                                     event->position().toPoint(), this);
    if (event->button() != Qt::LeftButton || part == QStyle::SC_SliderHandle) {
        QSlider::mousePressEvent(event);
        return;
    }
    // In every style the middle button moves the knob to the pointer.
    QMouseEvent middle(event->type(), event->position(), event->globalPosition(), Qt::MiddleButton,
                       Qt::MiddleButton, event->modifiers());
    QSlider::mousePressEvent(&middle);
}
