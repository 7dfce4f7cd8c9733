#include "platform/HIToolbox/Appearance.h"

#include "platform/QuickDraw/GrafPort.h"

#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionButton>

#include <cmath>

namespace {

/// From a button's edge to its content: its outline and a point of its bevel.
constexpr int kContentInset = 2;
/// The label font's size as a part of the text size.
constexpr double kLabelScale = 10.0 / 12.0;
/// How much smaller a line may become to have room; beyond that it is cut short.
constexpr double kLeastTextScale = 0.75;
/// The width of the rings that mark a button as pushed in, whatever little the style makes of that,
/// and as the keyboard's.
constexpr int kRing = 2;
constexpr double kCornerRadius = 3.0;

QString toQString(const CFString* text) {
    return QString::fromStdU16String(text->text()).replace(u'\r', u'\n');
}

void scaleFont(QFont& font, double scale) {
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(std::max(1, static_cast<int>(std::lround(font.pixelSize() * scale))));
}

QFont themeFont(const GrafPort& port, ThemeFontID id) {
    QFont font = port.widget().font();
    if (id == kThemeLabelFont)
        scaleFont(font, kLabelScale);
    return font;
}

int textFlags(bool wrapToWidth, int alignment) {
    return alignment | (wrapToWidth ? Qt::TextWordWrap : Qt::TextSingleLine);
}

/// Where a ring's middle runs, so that its outer side meets the edge.
QRectF insideEdge(const QRect& bounds) {
    return QRectF(bounds).adjusted(kRing / 2.0, kRing / 2.0, -kRing / 2.0, -kRing / 2.0);
}

/// Makes the painter's font smaller, within reason, until the line has room in the width; a line
/// that is still too long is cut short.
QString fittedLine(QPainter& painter, const QString& line, int width) {
    const int needed = painter.fontMetrics().horizontalAdvance(line);
    if (needed <= width)
        return line;
    QFont font = painter.font();
    scaleFont(font, std::max(kLeastTextScale, static_cast<double>(width) / needed));
    painter.setFont(font);
    return painter.fontMetrics().elidedText(line, Qt::ElideRight, width);
}

void drawFace(GrafPort& port, const QRect& bounds, ThemeButtonKind kind, bool on) {
    QStyleOptionButton option;
    option.initFrom(&port.widget());
    option.rect = bounds;
    option.state = QStyle::State_Enabled | (option.state & QStyle::State_Active) |
                   (on ? QStyle::State_On | QStyle::State_Sunken : QStyle::State_Raised);
    const auto face = kind == kThemeRoundedBevelButton ? QStyle::PE_PanelButtonCommand
                                                       : QStyle::PE_PanelButtonBevel;
    port.widget().style()->drawPrimitive(face, &option, &port.painter(), &port.widget());
}

void drawOnRing(GrafPort& port, const QRect& bounds, ThemeButtonKind kind) {
    QPainter& painter = port.painter();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(port.widget().palette().color(QPalette::Highlight), kRing));
    const double radius = kind == kThemeRoundedBevelButton ? kCornerRadius : 0;
    painter.drawRoundedRect(insideEdge(bounds), radius, radius);
    painter.restore();
}

} // namespace

OSStatus DrawThemeButton(const Rect* bounds, ThemeButtonKind kind, const ThemeButtonDrawInfo* info,
                         const ThemeButtonDrawInfo*, ThemeEraseUPP, ThemeButtonDrawUPP label,
                         void* userData) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return kThemeNoPortErr;
    const QRect face = toQRect(*bounds);
    const bool on = info->value == kThemeButtonOn;
    drawFace(*port, face, kind, on);
    if (on)
        drawOnRing(*port, face, kind);
    const Rect content =
        toRect(face.adjusted(kContentInset, kContentInset, -kContentInset, -kContentInset));
    label(&content, kind, info, userData);
    return noErr;
}

OSStatus SetThemeBackground(ThemeBrush, SInt16, bool) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return kThemeNoPortErr;
    port->background = port->widget().palette().color(QPalette::Window);
    return noErr;
}

OSStatus DrawThemeFocusRect(const Rect* rect, bool hasFocus) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return kThemeNoPortErr;
    if (!hasFocus)
        return noErr;
    QPainter& painter = port->painter();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(port->widget().palette().color(QPalette::ButtonText), kRing, Qt::DashLine,
                        Qt::FlatCap));
    painter.drawRoundedRect(insideEdge(toQRect(*rect)), kCornerRadius, kCornerRadius);
    painter.restore();
    return noErr;
}

OSStatus GetThemeTextDimensions(const CFString* text, ThemeFontID font, ThemeDrawState,
                                bool wrapToWidth, Point* bounds, SInt16* baseline) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return kThemeNoPortErr;
    const QFontMetrics metrics(themeFont(*port, font), port->painter().device());
    const QRect space(0, 0, wrapToWidth ? bounds->h : 0, 0);
    const QRect extent = metrics.boundingRect(space, textFlags(wrapToWidth, 0), toQString(text));
    *bounds = {static_cast<SInt16>(extent.height()), static_cast<SInt16>(extent.width())};
    if (baseline)
        *baseline = static_cast<SInt16>(-metrics.descent());
    return noErr;
}

OSStatus DrawThemeTextBox(const CFString* text, ThemeFontID font, ThemeDrawState, bool wrapToWidth,
                          const Rect* box, ThemeJustification, CGContext* context) {
    GrafPort* port = GrafPort::current();
    if (!port)
        return kThemeNoPortErr;
    const QRect place = toQRect(*box);
    QPainter& painter = port->painter();
    painter.save();
    painter.setFont(themeFont(*port, font));
    if (context) {
        painter.setPen(painter.brush().color());
        painter.translate(0, context->height());
        painter.scale(1, -1);
    } else {
        painter.setPen(port->widget().palette().color(QPalette::ButtonText));
    }
    QString line = toQString(text);
    if (!wrapToWidth)
        line = fittedLine(painter, line, place.width());
    painter.drawText(place, textFlags(wrapToWidth, Qt::AlignHCenter | Qt::AlignTop), line);
    painter.restore();
    return noErr;
}
