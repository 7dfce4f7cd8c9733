// SPDX-License-Identifier: MIT
#pragma once

#include <QPushButton>

/// The widget behind an NSColorWell: a button with a patch of colour on it.
class ColorWellButton final : public QPushButton {
public:
    explicit ColorWellButton(QWidget* parent);

    QColor color() const { return color_; }

    void setColor(const QColor& color);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QColor color_;
};
