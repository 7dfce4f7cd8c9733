// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PageArea.h"

#include <QApplication>
#include <QLayout>
#include <QScrollBar>

namespace {

constexpr int kAround = 30; // points that stay in sight above and below

} // namespace

PageArea::PageArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) {
        // A control that moves away under a press would not be clicked.
        if (now && isAncestorOf(now) && QGuiApplication::mouseButtons() == Qt::NoButton)
            ensureWidgetVisible(now, 0, kAround);
    });
}

QSize PageArea::minimumSizeHint() const {
    // A page that isn't shown doesn't hear that its parts have become narrower, or have gone.
    if (widget() && !isVisible()) {
        const auto parts = widget()->findChildren<QWidget*>();
        for (auto part = parts.rbegin(); part != parts.rend(); ++part)
            if ((*part)->layout())
                (*part)->layout()->activate();
        widget()->layout()->activate();
    }
    const int width = widget() ? widget()->minimumSizeHint().width() : 0;
    return {width + verticalScrollBar()->sizeHint().width(), 100};
}
