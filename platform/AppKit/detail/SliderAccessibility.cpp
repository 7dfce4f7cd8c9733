// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/SliderAccessibility.h"

#include "platform/AppKit/detail/SliderWidget.h"
#include "platform/CoreFoundation/Localization.h"

#include <QAccessibleWidget>

namespace {

/// Reports real values to assistive technology. Qt's own interface reports whole-number steps.
class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderInterface(SliderWidget* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    // AT-SPI has no text for a value, so the description begins with it.
    QString text(QAccessible::Text kind) const override {
        const QString own = QAccessibleWidget::text(kind);
        if (kind == QAccessible::Value)
            return slider_->valueText();
        if (kind != QAccessible::Description || slider_->valueText().isEmpty())
            return own;
        return QString::fromStdString(
            joined(Joint::Value, {slider_->valueText().toStdString(), own.toStdString()}));
    }

    QVariant currentValue() const override { return slider_->doubleValue(); }

    void setCurrentValue(const QVariant& value) override { slider_->moveTo(value.toDouble()); }

    QVariant minimumValue() const override { return slider_->minValue(); }

    QVariant maximumValue() const override { return slider_->maxValue(); }

    QVariant minimumStepSize() const override {
        const double range = slider_->maxValue() - slider_->minValue();
        return range * slider_->singleStep() / (slider_->maximum() - slider_->minimum());
    }

private:
    SliderWidget* slider_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* slider = dynamic_cast<SliderWidget*>(object);
    return slider ? new SliderInterface(slider) : nullptr;
}

} // namespace

void installSliderAccessibility() {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}
