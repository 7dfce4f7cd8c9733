#include "platform/AppKit/detail/PageArea.h"

#include <QScrollBar>

#include <algorithm>

PageArea::PageArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

QSize PageArea::sizeHint() const {
    if (!widget())
        return QScrollArea::sizeHint();
    const int width = std::min(widget()->maximumWidth(), widget()->sizeHint().width());
    const int height = widget()->hasHeightForWidth() ? widget()->heightForWidth(width)
                                                     : widget()->sizeHint().height();
    return {width, height};
}

QSize PageArea::minimumSizeHint() const {
    const int width = widget() ? widget()->minimumSizeHint().width() : 0;
    return {width + verticalScrollBar()->sizeHint().width(), 100};
}
