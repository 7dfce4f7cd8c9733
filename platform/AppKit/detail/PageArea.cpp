// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PageArea.h"

#include <QApplication>
#include <QScrollBar>

namespace {

constexpr int kAround = 30;     // points that stay visible above and below
constexpr QSize kUsual(36, 24); // in heights of a line

} // namespace

PageArea::PageArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // A control that moved during a press would not be clicked.
        if (now && isAncestorOf(now) && QGuiApplication::mouseButtons() == Qt::NoButton)
            ensureWidgetVisible(now, 0, kAround);
    });
}

QSize PageArea::sizeHint() const {
    return fontMetrics().height() * kUsual;
}

QSize PageArea::minimumSizeHint() const {
    const int width = widget() && !isHidden() ? widget()->minimumSizeHint().width() : 0;
    return {width + verticalScrollBar()->sizeHint().width(), 100};
}

void PageArea::hideEvent(QHideEvent* event) {
    QScrollArea::hideEvent(event);
    updateGeometry();
}
