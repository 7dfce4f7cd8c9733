// SPDX-License-Identifier: MIT
// A frame of the sweeping line on the page “Find my speed”. Floor: the same strip directly with Qt.
// tests/e2e/tryout.py watches from outside whether frames come in time.

#include "bench/Figures.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "platform/HIToolbox/EventTimers.h"
#include "src/store/prefs.h"
#include "src/tryout/TryView.h"

#include <QImage>
#include <QPainter>
#include <QWidget>

namespace {

constexpr QSize kViewSize(1880, 900); // on the whole of a common screen
constexpr QRect kStrip(0, 440, 1880, 24);
constexpr int kFrames = 4;

double secondsAFrame(QWidget& widget) {
    widget.resize(kViewSize);
    QImage image(kViewSize, QImage::Format_ARGB32_Premultiplied);
    return secondsOf([&] {
               for (int i = 0; i < kFrames; ++i)
                   widget.render(&image, kStrip.topLeft(), kStrip);
           }) /
           kFrames;
}

double frame() {
    static ViewWidget& widget = *new ViewWidget(nullptr);
    static TryView& view = *new TryView;
    prefs = PrefsRecord{};
    const double now = GetCurrentEventTime();
    tryout::Session session({.travel = 240, .time = 10}, 10, 0, {}, 1);
    session.press(now - 5);
    session.release(now - 5);
    session.advance(now);
    view.attachWidget(&widget);
    view.setSession(&session, 900 / 240.0);
    return secondsAFrame(widget);
}

/// The same strip: the ground, the mark, the frame and the line.
class BareStrip final : public QWidget {
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.fillRect(rect(), Qt::white);
        painter.fillRect(0, 300, width(), 37, QColor(50, 140, 200, 51));
        painter.setPen(Qt::blue);
        painter.drawRect(0, 0, width() - 1, height() - 1);
        painter.fillRect(0, 447, width(), 7, QColor(100, 0, 0, 242));
    }
};

double bareFrame() {
    static BareStrip& widget = *new BareStrip;
    return secondsAFrame(widget);
}

} // namespace

void addTryFigures() {
    addFigure("a frame of the line that sweeps", {Limit::Times, 1.5}, frame, bareFrame);
}
