// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SliderWidget.h"

#include "platform/AppKit/detail/ShownText.h"

#include <QAccessible>
#include <QAccessibleWidget>
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

/// Tells assistive technology the real value, where Qt's own interface tells whole-number steps.
class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderInterface(SliderWidget* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

    static QAccessibleInterface* make(const QString&, QObject* object) {
        auto* slider = dynamic_cast<SliderWidget*>(object);
        return slider ? new SliderInterface(slider) : nullptr;
    }

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // The protocol of the Linux desktops has no place for a value's text, so the description
    // begins with it.
    QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Value)
            return slider_->valueText();
        if (kind != QAccessible::Description || slider_->valueText().isEmpty())
            return own;
        return own.isEmpty() ? slider_->valueText() : slider_->valueText() + ". " + own;
    }

    QVariant currentValue() const override { return slider_->doubleValue(); }

    void setCurrentValue(const QVariant& value) override {
        slider_->setValue(slider_->positionOf(value.toDouble()));
    }

    QVariant minimumValue() const override { return slider_->minValue(); }

    QVariant maximumValue() const override { return slider_->maxValue(); }

    QVariant minimumStepSize() const override {
        const double range = slider_->maxValue() - slider_->minValue();
        return range * slider_->singleStep() / (slider_->maximum() - slider_->minimum());
    }

private:
    SliderWidget* slider_;
};

SliderWidget::SliderWidget(QWidget* parent) : QSlider(parent) {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(SliderInterface::make);
        return true;
    }();
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
    // Divided last, so that a tenth is the double nearest to it.
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
    // The middle button is the one that takes the knob to the pointer in every style.
    QMouseEvent middle(event->type(), event->position(), event->globalPosition(), Qt::MiddleButton,
                       Qt::MiddleButton, event->modifiers());
    QSlider::mousePressEvent(&middle);
}
