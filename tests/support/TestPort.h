#pragma once

#include "platform/QuickDraw/GrafPort.h"

#include <QApplication>
#include <QImage>

#include <functional>

/// The program's only application object, which widgets need.
inline void makeTestApplication() {
    static int argc = 1;
    static char name[] = "test";
    static char* argv[] = {name, nullptr};
    static QApplication application(argc, argv);
}

/// What `draw` draws into a current port of that size, in points; white where it draws nothing.
inline QImage drawInPort(const QSize& size, double pixelRatio, const std::function<void()>& draw) {
    makeTestApplication();
    QWidget widget;
    widget.resize(size);
    QImage picture((QSizeF(size) * pixelRatio).toSize(), QImage::Format_ARGB32_Premultiplied);
    picture.setDevicePixelRatio(pixelRatio);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    const GrafPort port(painter, widget);
    draw();
    return picture;
}

/// The smallest rectangle that holds all pixels that aren't white.
inline QRect drawnArea(const QImage& picture) {
    QRect area;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            if (picture.pixelColor(x, y) != Qt::white)
                area |= QRect(x, y, 1, 1);
    return area;
}
