#include "platform/AppKit/SliderWidget.h"

#include "platform/AppKit/NSSlider.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QLabel>
#include <QMouseEvent>
#include <QStyleOptionSlider>
#include <QVariant>
#include <QWheelEvent>

namespace {

constexpr int kMinimumHeight = 24; // points that a finger or a trembling hand needs

/// Tells assistive technology the real value, where Qt's own interface tells whole-number steps.
class SliderInterface final : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit SliderInterface(SliderWidget* slider)
        : QAccessibleWidget(slider, QAccessible::Slider), slider_(slider) {}

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

    QVariant currentValue() const override { return slider_->view->doubleValue(); }

    void setCurrentValue(const QVariant& value) override {
        slider_->view->chooseDoubleValue(value.toDouble());
    }

    QVariant minimumValue() const override { return slider_->view->minValue(); }

    QVariant maximumValue() const override { return slider_->view->maxValue(); }

    QVariant minimumStepSize() const override {
        const double range = slider_->view->maxValue() - slider_->view->minValue();
        return range * slider_->singleStep() / (slider_->maximum() - slider_->minimum());
    }

private:
    SliderWidget* slider_;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* slider = dynamic_cast<SliderWidget*>(object);
    return slider && slider->view ? new SliderInterface(slider) : nullptr;
}

} // namespace

SliderWidget::SliderWidget(QWidget* parent) : QSlider(parent) {
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    setMinimumHeight(kMinimumHeight);
}

QString SliderWidget::valueText() const {
    for (const auto* label : parent()->findChildren<QLabel*>(Qt::FindDirectChildrenOnly)) {
        if (!label->buddy() && label->property("outlet").isValid())
            return label->text().trimmed();
    }
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
