// SPDX-License-Identifier: MIT
// One redraw of the preview. Floor: decoding its pointer and drawing the same shapes directly with
// Qt. Also the longest frame while a transparency is dragged.

#include "bench/BarePreview.h"
#include "bench/Figures.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "src/link/Daemon.h"
#include "src/pane/look/SampleScanView.h"
#include "src/scan/palutil.h"
#include "src/store/prefs.h"

#include <QImage>
#include <QPainter>

#include <cstdio>

namespace {

constexpr int kRedraws = 20;

QImage blankImage() {
    return {kPreviewSize, QImage::Format_ARGB32_Premultiplied};
}

double redraw() {
    static ViewWidget& widget = *new ViewWidget(nullptr);
    static SampleScanView& view = *new SampleScanView;
    prefs = PrefsRecord{};
    prefs.on = 0;
    view.attachWidget(&widget);
    widget.resize(kPreviewSize);
    daemonSetup(createFromUTF8(kBenchAgent).get());
    palutilSetup();
    QImage image = blankImage();
    widget.render(&image); // reads the buttons' icons
    const double seconds = workSecondsOf([&] {
        for (int i = 0; i < kRedraws; ++i)
            widget.render(&image);
    });
    palutilCleanup();
    daemonCleanup();
    return seconds / kRedraws;
}

double redrawBare() {
    static ViewWidget& widget = *new ViewWidget(nullptr);
    static NSView& view = *new NSView;
    view.attachWidget(&widget);
    widget.resize(kPreviewSize);
    QImage image = blankImage();
    return workSecondsOf([&] {
               for (int i = 0; i < kRedraws; ++i) {
                   widget.render(&image);
                   QPainter painter(&image);
                   drawBarePreview(widget, painter);
               }
           }) /
           kRedraws;
}

/// In a bus session of its own without other agents. One drag of ten seconds is enough.
double probe(const char* command) {
    double result = -1;
    FILE* output = popen(command, "r");
    if (!output)
        return result;
    if (std::fscanf(output, "%lf", &result) != 1)
        result = -1;
    return pclose(output) == 0 ? result : -1;
}

double longestFrame() {
    static const double seconds = probe("dbus-run-session -- \"" DRAG_PROBE "\"");
    return seconds;
}

double longestBareFrame() {
    static const double seconds = probe("dbus-run-session -- \"" DRAG_PROBE "\" bare");
    return seconds;
}

} // namespace

void addPreviewFigures() {
    addFigure("redraw of the preview", {Limit::Times, 2}, redraw, redrawBare);
    addFigure("longest frame while a transparency is dragged", {Limit::Times, 3}, longestFrame,
              longestBareFrame);
}
