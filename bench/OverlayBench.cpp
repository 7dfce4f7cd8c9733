// SPDX-License-Identifier: MIT
// Frames of the scan-area chooser over two displays of 3840 x 2160, with an area as large as one of
// them. Floor: clearing and filling the same areas with a bare painter on the same picture.

#include "bench/Figures.h"
#include "platform/HIToolbox/detail/EventRecord.h"
#include "src/pane/area/choosearea.h"

#include <QApplication>
#include <QBackingStore>
#include <QFile>
#include <QPainter>
#include <QTimer>
#include <QWidget>

#include <algorithm>
#include <functional>

namespace {

constexpr char kDisplays[] =
    R"({"screens": [{"name": "left", "x": 0, "y": 0, "width": 3840, "height": 2160},
                    {"name": "right", "x": 3840, "y": 0, "width": 3840, "height": 2160}]})";
constexpr QRect kWorld(0, 0, 7680, 2160);
constexpr QRect kCurrent(1920, 0, 3840, 2160);
constexpr QRect kDragged(100, 100, 7000, 1900);
constexpr QRect kPrompt(1700, 700, 440, 82); // about
constexpr QPoint kDragStep(15, 10);

void sendMouse(UInt32 kind, QPoint place) {
    EventRecord mouse(kEventClassMouse, kind);
    mouse.with(kEventParamMouseLocation, typeHIPoint,
               CGPoint{static_cast<CGFloat>(place.x()), static_cast<CGFloat>(place.y())});
    overlayHandler(nullptr, &mouse, nullptr);
}

bool isPaintedOverlay(const QWidget* window) {
    const QBackingStore* store = window->backingStore();
    return window->isVisible() && store && store->size() == kWorld.size();
}

/// Calls `work` during a drag and returns the seconds that it reports.
double inDrag(const std::function<double(QWidget&)>& work) {
    double seconds = -1;
    QTimer waiting;
    QObject::connect(&waiting, &QTimer::timeout, [&] {
        const auto windows = QApplication::topLevelWidgets();
        const auto found = std::ranges::find_if(windows, isPaintedOverlay);
        if (found == windows.end())
            return; // not painted yet
        QWidget* overlay = *found;
        sendMouse(kEventMouseDown, kDragged.topLeft());
        sendMouse(kEventMouseDragged, kDragged.bottomRight());
        seconds = work(*overlay);
        EventRecord escape(kEventClassKeyboard, kEventRawKeyDown);
        escape.with(kEventParamKeyMacCharCodes, typeChar, '\x1b');
        overlayHandler(nullptr, &escape, nullptr);
    });
    waiting.start(0);
    CGRect area = {{kCurrent.x(), kCurrent.y()}, {kCurrent.width(), kCurrent.height()}};
    chooseArea(&area);
    return seconds;
}

double drawWholeFrame() {
    return inDrag([](QWidget&) { return workSecondsOf(drawOverlay); });
}

double drawDragFrame() {
    return inDrag([](QWidget&) {
        return workSecondsOf(
            [] { sendMouse(kEventMouseDragged, kDragged.bottomRight() + kDragStep); });
    });
}

/// Clears and fills that part of the picture.
double paintBare(const QRegion& part) {
    return inDrag([&](QWidget& overlay) {
        return workSecondsOf([&] {
            QPainter painter(overlay.backingStore()->paintDevice());
            painter.setClipRegion(part);
            painter.setCompositionMode(QPainter::CompositionMode_Source);
            painter.fillRect(kWorld, Qt::transparent);
            painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
            painter.fillRect(kPrompt, QColor(255, 255, 230));
            painter.fillRect(kCurrent, QColor(51, 51, 255, 10));
            painter.fillRect(kDragged, QColor(255, 51, 51, 26));
        });
    });
}

double paintBareFrame() {
    return paintBare(kWorld);
}

/// What the drag has uncovered, and the earlier edge of the area.
double paintBareStep() {
    const QRect now = kDragged.adjusted(0, 0, kDragStep.x(), kDragStep.y());
    return paintBare(QRegion(now) - QRegion(kDragged.adjusted(0, 0, -1, -1)));
}

} // namespace

QByteArray chooseDisplays() {
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    const QString path = qEnvironmentVariable("KORVEX_TEST_SANDBOX") + "/bench-displays.json";
    QFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(kDisplays) > 0)
        qputenv("QT_QPA_PLATFORM", ("offscreen:configfile=" + path).toLocal8Bit());
    return platform;
}

void addOverlayFigures() {
    addFigure("a whole frame of the overlay over two displays", {Limit::Times, 2}, drawWholeFrame,
              paintBareFrame);
    addFigure("a frame of a drag across them", {Limit::Times, 5}, drawDragFrame, paintBareStep);
}
