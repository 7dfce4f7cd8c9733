// SPDX-License-Identifier: MIT
// One redraw of the palette's editor. Floor: the same nine buttons, icons and texts drawn directly
// with Qt. Also the cost of icons and titles at the first visit of its section.

#include "bench/Figures.h"
#include "platform/AppKit/detail/ViewWidget.h"
#include "src/link/Daemon.h"
#include "src/pane/palette/PaletteView.h"
#include "src/scan/palutil.h"
#include "src/store/prefs.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionButton>

#include <algorithm>
#include <array>

namespace {

constexpr QSize kViewSize(700, 74);
constexpr int kRedraws = 20;

void fillSlots() {
    constexpr UInt8 kActions[kNumPaletteSlots] = {20, 21, 22, 1, 2, 3, 4, 5, 6};
    std::copy(std::begin(kActions), std::end(kActions), prefs.buttonActions);
}

/// The view without a window. Grabbing it draws it once.
struct Editor {
    ViewWidget widget{nullptr};
    PaletteView view;

    Editor() {
        fillSlots();
        view.attachWidget(&widget);
        widget.resize(kViewSize);
    }

    void draw(QImage& image) { widget.render(&image); }
};

QImage blankImage() {
    return {kViewSize, QImage::Format_ARGB32_Premultiplied};
}

/// A visit of the pane, which loads its resources.
void beginVisit() {
    prefs.on = 0;
    daemonSetup(createFromUTF8(KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app").get());
    palutilSetup();
}

double redraw() {
    static Editor& editor = *new Editor; // outlives the application, as its palette must not
    static bool begun = false;
    QImage image = blankImage();
    if (!std::exchange(begun, true)) {
        beginVisit();
        editor.draw(image);
    }
    return workSecondsOf([&] {
               for (int i = 0; i < kRedraws; ++i)
                   editor.draw(image);
           }) /
           kRedraws;
}

void drawBare(QWidget& widget, QPainter& painter) {
    static const QPixmap icon = [] {
        QPixmap pixmap(32, 32);
        pixmap.fill(Qt::darkBlue);
        return pixmap;
    }();
    constexpr std::array<const char*, kNumPaletteSlots> kTitles = {
        "Click", "Double", "Drag", "Type", "Scroll", "Pg up", "Pg down", "Back", "Forward"};
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * 10 / 12);
    painter.setFont(font);
    const int side = kViewSize.height();
    const int gap = (kViewSize.width() - kNumPaletteSlots * side) / 8;
    for (int i = 0; i < kNumPaletteSlots; ++i) {
        QStyleOptionButton option;
        option.initFrom(&widget);
        option.state = QStyle::State_Enabled | QStyle::State_Raised;
        option.rect = {i * (side + gap), 0, side, side};
        widget.style()->drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter, &widget);
        const QRect inside = option.rect.adjusted(2, 2, -2, -2);
        painter.drawPixmap(inside.left() + (inside.width() - 32) / 2, inside.top() + 12, icon);
        painter.drawText(inside, Qt::AlignHCenter | Qt::AlignBottom | Qt::TextSingleLine,
                         QString::fromLatin1(kTitles[static_cast<std::size_t>(i)]));
    }
}

double redrawBare() {
    static ViewWidget& widget = *new ViewWidget(nullptr);
    static NSView& view = *new NSView;
    view.attachWidget(&widget);
    widget.resize(kViewSize);
    QImage image = blankImage();
    return workSecondsOf([&] {
               for (int i = 0; i < kRedraws; ++i) {
                   widget.render(&image);
                   QPainter painter(&image);
                   drawBare(widget, painter);
               }
           }) /
           kRedraws;
}

} // namespace

void addPaletteFigures() {
    addFigure("redraw of the palette's editor", {Limit::Times, 1.5}, redraw, redrawBare);
}
