// SPDX-License-Identifier: MIT
#pragma once

#include <QSlider>

/// The widget behind an NSSlider. Its whole-number positions stand for doubles between two limits.
class SliderWidget final : public QSlider {
public:
    explicit SliderWidget(QWidget* parent);

    void setLimits(double minValue, double maxValue);

    double minValue() const { return minValue_; }

    double maxValue() const { return maxValue_; }

    /// What was last set, or what the user chose since then.
    double doubleValue() const { return doubleValue_; }

    /// Goes to the nearest position and emits nothing.
    void setDoubleValue(double value);

    /// Goes to the nearest position as if the user had moved it.
    void moveTo(double value);

    /// The preferred width, in points.
    void setPreferredWidth(int width) { preferredWidth_ = width; }

    QSize sizeHint() const override;

    /// The text of the value label beside the slider, trimmed. May be empty.
    QString valueText() const;

protected:
    void sliderChange(SliderChange change) override;
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    int positionOf(double value) const;
    double valueAt(int position) const;

    double minValue_ = 0;
    double maxValue_ = 1;
    double doubleValue_ = 0;
    int preferredWidth_ = 0; ///< 0: as the style likes it
};
