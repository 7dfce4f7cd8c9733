// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ColorWellButton.h"

#include <QDialog>
#include <QHideEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace {

constexpr QSize kMinimumSize(44, 24);
constexpr int kBorder = 5; // from the button's edge to the patch: room for the focus ring
constexpr int kDot = 6;    // radius of the mark of a chosen colour

} // namespace

ColorWellButton::ColorWellButton(QWidget* parent) : QPushButton(parent) {}

void ColorWellButton::setColor(const QColor& color) {
    color_ = color;
    update();
}

QSize ColorWellButton::sizeHint() const {
    const int height = QPushButton::sizeHint().height();
    return QSize(2 * height, height).expandedTo(kMinimumSize);
}

QSize ColorWellButton::minimumSizeHint() const {
    return kMinimumSize;
}

void ColorWellButton::paintEvent(QPaintEvent*) {
    QStyleOptionButton option;
    initStyleOption(&option);
    option.text.clear();
    QStylePainter painter(this);
    painter.drawControl(QStyle::CE_PushButton, option);

    QColor patch = color_;
    patch.setAlphaF(isEnabled() ? 1.0F : 0.4F);
    painter.setPen(palette().color(QPalette::ButtonText));
    painter.setBrush(patch);
    painter.drawRect(rect().adjusted(kBorder, kBorder, -kBorder - 1, -kBorder - 1));
    if (isChecked()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(qGray(patch.rgb()) < 128 ? Qt::white : Qt::black);
        painter.drawEllipse(rect().center(), kDot, kDot);
    }
}

// The page closes with the button, but not when the window is only minimised.
void ColorWellButton::hideEvent(QHideEvent* event) {
    auto* page = findChild<QDialog*>({}, Qt::FindDirectChildrenOnly);
    if (page && !event->spontaneous()) {
        page->hide();
        page->deleteLater();
    }
}
