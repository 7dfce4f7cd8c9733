// SPDX-License-Identifier: MIT
#include "agent/PalettePicture.h"

#include "platform/HIToolbox/Appearance.h"
#include "platform/QuickDraw/detail/GrafPort.h"
#include "src/scan/palutil.h"

#include <QPainter>

#include <cmath>

namespace {

constexpr SInt16 kColorDepth = 32; ///< bits
constexpr int kTextMargin = 8;     ///< points, around the line
constexpr double kTextScale = 1.3; ///< of the widget's font: it is read from further away

Rect rectOf(const PaletteBox& box) {
    return toRect({box.left, box.top, box.width, box.height});
}

QImage emptyPicture(QSizeF size, double scale) {
    QImage image((size * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    return image;
}

} // namespace

QImage palettePicture(QWidget& widget, const PrefsRecord& record, const PalettePlace& place,
                      const PaletteState& state) {
    const PaletteLayout& layout = place.layout;
    if (place.frame.isEmpty())
        return {};
    widget.resize(layout.width, layout.height); // the port has its size
    QImage image = emptyPicture(widget.size(), place.scale);
    QPainter painter(&image);
    GrafPort port(painter, widget);
    const Rect frame = toRect(widget.rect());
    SetThemeBackground(kThemeBrushUtilityWindowBackgroundActive, kColorDepth, true);
    EraseRect(&frame);
    PenNormal();
    FrameRect(&frame);
    for (std::size_t slot = 0; slot < layout.buttons.size(); ++slot) {
        if (layout.buttons[slot].isEmpty())
            continue;
        const Rect bounds = rectOf(layout.buttons[slot]);
        palutilDrawBtnAs(record.buttonActions[slot], state.isOn[slot], bounds, record.buttonShape,
                         record.buttonContent);
        DrawThemeFocusRect(&bounds, state.marked == slot);
    }
    return image;
}

QImage textPicture(const QWidget& widget, const std::string& text, double scale, double mostWidth) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * kTextScale);
    const QFontMetrics metrics(font);
    const QString line = metrics.elidedText(QString::fromStdString(text), Qt::ElideRight,
                                            static_cast<int>(mostWidth / scale) - 2 * kTextMargin);
    const QRect bounds(0, 0, metrics.horizontalAdvance(line) + 2 * kTextMargin,
                       metrics.height() + 2 * kTextMargin);
    QImage image = emptyPicture(bounds.size(), scale);
    QPainter painter(&image);
    painter.fillRect(bounds, widget.palette().color(QPalette::Window));
    painter.setPen(widget.palette().color(QPalette::WindowText));
    painter.drawRect(bounds.adjusted(0, 0, -1, -1));
    painter.setFont(font);
    painter.drawText(bounds, Qt::AlignCenter | Qt::TextSingleLine, line);
    return image;
}
