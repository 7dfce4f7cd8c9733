// SPDX-License-Identifier: MIT
// One redraw of the preview, against decoding its pointer and drawing the same shapes straight
// through Qt; and the longest frame while a transparency is dragged.

#include "bench/Figures.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "src/prefpane/Daemon.h"
#include "src/prefpane/SampleScanView.h"
#include "src/prefpane/palutil.h"
#include "src/prefs.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>

#include <cstdio>

namespace {

constexpr char kAgent[] = KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app";
constexpr QSize kViewSize(414, 140); // as the form shows it at first
constexpr int kRedraws = 20;

QImage blankImage() {
    return {kViewSize, QImage::Format_ARGB32_Premultiplied};
}

double redraw() {
    static ViewWidget& widget = *new ViewWidget(nullptr);
    static SampleScanView& view = *new SampleScanView;
    prefs = PrefsRecord{};
    prefs.on = 0;
    view.attachWidget(&widget);
    widget.resize(kViewSize);
    daemonSetup(CFStringCreateWithUTF8(kAgent).get());
    palutilSetup();
    QImage image = blankImage();
    widget.render(&image); // reads the buttons' icons
    const double seconds = secondsOf([&] {
        for (int i = 0; i < kRedraws; ++i)
            widget.render(&image);
    });
    palutilCleanup();
    daemonCleanup();
    return seconds / kRedraws;
}

void drawButton(QWidget& widget, QPainter& painter, int left, const char* title) {
    static const QPixmap icon = [] {
        QPixmap pixmap(16, 16);
        pixmap.fill(Qt::darkBlue);
        return pixmap;
    }();
    QStyleOptionButton option;
    option.initFrom(&widget);
    option.state = QStyle::State_Enabled | QStyle::State_Raised;
    option.rect = {left, 50, 40, 40};
    widget.style()->drawPrimitive(QStyle::PE_PanelButtonBevel, &option, &painter, &widget);
    painter.drawPixmap(left + 12, 56, icon);
    painter.drawText(option.rect.adjusted(2, 2, -2, -2),
                     Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine,
                     QString::fromLatin1(title));
}

void drawBare(QWidget& widget, QPainter& painter) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * 10 / 12);
    painter.setFont(font);
    painter.fillRect(QRect(QPoint(), kViewSize), Qt::lightGray);
    painter.fillRect(1, 67, kViewSize.width() - 2, 7, QColor(100, 0, 0, 242));
    painter.drawText(kViewSize.width() - 60, 84, QStringLiteral("Scan Line"));
    painter.fillRect(0, 45, 102, 50, widget.palette().window());
    drawButton(widget, painter, 10, "Click");
    drawButton(widget, painter, 56, "Double");
    painter.drawRect(0, 45, 101, 49);
    const QString pointers = QString::fromUtf8(kAgent) + "/Contents/Resources/Pointers/";
    painter.drawImage(207, 70, QImage(pointers + "default.png", "png"));
    painter.drawRect(0, 0, kViewSize.width() - 1, kViewSize.height() - 1);
}

double redrawBare() {
    static ViewWidget& widget = *new ViewWidget(nullptr);
    static NSView& view = *new NSView;
    view.attachWidget(&widget);
    widget.resize(kViewSize);
    QImage image = blankImage();
    return secondsOf([&] {
               for (int i = 0; i < kRedraws; ++i) {
                   widget.render(&image);
                   QPainter painter(&image);
                   drawBare(widget, painter);
               }
           }) /
           kRedraws;
}

/// In a session of its own, where no other agent is found; one drag of ten seconds is enough.
double longestFrame() {
    static const double seconds = [] {
        double result = -1;
        FILE* output = popen("dbus-run-session -- \"" DRAG_PROBE "\"", "r");
        if (!output)
            return result;
        if (std::fscanf(output, "%lf", &result) != 1)
            result = -1;
        return pclose(output) == 0 ? result : -1;
    }();
    return seconds;
}

} // namespace

void addPreviewFigures() {
    addFigure("redraw of the preview", {Limit::Times, 2}, redraw, redrawBare);
    addFigure("longest frame while a transparency is dragged", {Limit::Under, 0.008}, longestFrame);
}
