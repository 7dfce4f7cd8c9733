#pragma once

#include <QSlider>

class NSSlider;

/// The widget behind an NSSlider.
class SliderWidget final : public QSlider {
public:
    explicit SliderWidget(QWidget* parent);

    /// The slider that this widget belongs to; set once it has been wired.
    NSSlider* view = nullptr;

    /// The text of the value label beside the slider, without blanks around it; may be empty.
    QString valueText() const;

protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
};
