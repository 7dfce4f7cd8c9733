// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/Appearance.h"

#include "platform/QuickDraw/detail/GrafPort.h"

#include <QCache>
#include <QFontMetrics>
#include <QStaticText>
#include <QStyle>
#include <QStyleOptionButton>

#include <cmath>

namespace {

/// From a button's edge to its content: the outline and one point of the bevel.
constexpr int kContentInset = 2;
/// The label font's size, as a share of the text size.
constexpr double kLabelScale = 10.0 / 12.0;
/// How much smaller a line may be drawn to fit. Beyond that it is shortened.
constexpr double kLeastTextScale = 0.75;
/// How many laid-out lines are cached: the palette's names, some in two sizes.
constexpr int kMostLines = 100;
/// The width of the rings that mark a pushed-in button and the keyboard focus. Some styles show
/// neither clearly.
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

/// Cached between texts: for a new font Qt searches all fonts.
const QFont& labelFont(const QFont& textFont) {
    static QFont lastTextFont, label;
    static bool isMade = false;
    if (!isMade || textFont != lastTextFont) {
        lastTextFont = label = textFont;
        scaleFont(label, kLabelScale);
        isMade = true;
    }
    return label;
}

const QFont& themeFont(const GrafPort& port, ThemeFontID id) {
    const QFont& textFont = port.widget().font();
    return id == kThemeLabelFont ? labelFont(textFont) : textFont;
}

/// A cached layout: the same few names are drawn again and again.
const QStaticText& laidOut(const CFString* text, const QFont& font) {
    static auto& lines = *new QCache<std::pair<QString, QFont>, QStaticText>(kMostLines);
    const std::pair key(toQString(text).replace(u'\n', u' '), font);
    if (const QStaticText* known = lines.object(key))
        return *known;
    auto* made = new QStaticText(key.first);
    made->setTextFormat(Qt::PlainText);
    made->prepare({}, font);
    lines.insert(key, made);
    return *made;
}

/// Where the middle of a ring's line runs if its outer side touches the edge.
QRectF insideEdge(const QRect& bounds) {
    return QRectF(bounds).adjusted(kRing / 2.0, kRing / 2.0, -kRing / 2.0, -kRing / 2.0);
}

/// Draws a line of text centred in the width. One that is too long is drawn smaller, then
/// shortened.
void drawLine(QPainter& painter, const QRect& place, const QStaticText& line) {
    const double room = place.width() - line.size().width();
    if (room >= 0) {
        painter.drawStaticText(QPointF(place.x() + std::floor(room / 2), place.y()), line);
        return;
    }
    QFont font = painter.font();
    scaleFont(font, std::max(kLeastTextScale, place.width() / line.size().width()));
    painter.setFont(font);
    const QString shortened =
        painter.fontMetrics().elidedText(line.text(), Qt::ElideRight, place.width());
    painter.drawText(place, Qt::AlignHCenter | Qt::TextSingleLine, shortened);
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
    const QFont& textFont = themeFont(*port, font);
    const QFontMetrics metrics(textFont, port->painter().device());
    const QSizeF extent =
        wrapToWidth
            ? QSizeF(metrics.boundingRect({0, 0, bounds->h, 0}, Qt::TextWordWrap, toQString(text))
                         .size())
            : laidOut(text, textFont).size();
    *bounds = {static_cast<SInt16>(std::ceil(extent.height())),
               static_cast<SInt16>(std::ceil(extent.width()))};
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
    if (wrapToWidth)
        painter.drawText(place, Qt::TextWordWrap | Qt::AlignHCenter, toQString(text));
    else
        drawLine(painter, place, laidOut(text, painter.font()));
    painter.restore();
    return noErr;
}
