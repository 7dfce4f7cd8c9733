// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/PaneStyle.h"

#include "platform/AppKit/detail/PaneColors.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QVariant>

#include <algorithm>

namespace {

using namespace panestyle;

constexpr qreal kGroove = 4;
constexpr int kPadding = 32; ///< of a button, both sides of its text together
constexpr int kTightPadding = 18;
constexpr qreal kCardRadius = 10;
constexpr int kHeadingGap = 8; ///< between a group's heading and its card

/// Sets a painter up for antialiased shapes, and restores it.
class Smooth {
public:
    explicit Smooth(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }

    ~Smooth() { painter_.restore(); }

    Smooth(const Smooth&) = delete;
    Smooth& operator=(const Smooth&) = delete;

private:
    QPainter& painter_;
};

bool has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

/// The border shows focus, a mark, or nothing when the control is disabled.
void drawControlBox(QPainter& painter, const QStyleOption& option, const QColor& fill) {
    const PaneColors colors(option.palette);
    const bool focused = has(option, QStyle::State_HasFocus);
    drawBox(painter, QRectF(option.rect), fill,
            focused                              ? colors.accent
            : has(option, QStyle::State_Enabled) ? colors.mark
                                                 : colors.cardLine,
            focused ? kRing : kBorder);
}

void drawButton(QPainter& painter, const QStyleOption& option) {
    const PaneColors colors(option.palette);
    const bool down = has(option, QStyle::State_Sunken) || has(option, QStyle::State_On);
    drawControlBox(painter, option, down ? colors.pressed : colors.buttonFace);
}

QRectF indicatorSquare(const QRect& rect) {
    const qreal side = std::min({rect.width(), rect.height(), kIndicator});
    QRectF square(0, 0, side, side);
    square.moveCenter(QRectF(rect).center());
    return square;
}

void drawCheck(QPainter& painter, const QStyleOption& option) {
    const Smooth smooth(painter);
    const PaneColors colors(option.palette);
    const QRectF square = indicatorSquare(option.rect);
    const QColor mark = has(option, QStyle::State_Enabled) ? colors.mark : colors.disabledText;
    if (!has(option, QStyle::State_On)) {
        drawBox(painter, square, colors.card, mark, 2, 6);
        return;
    }
    const QColor fill = has(option, QStyle::State_Enabled) ? colors.accent : colors.disabledText;
    drawBox(painter, square, fill, fill, 1, 6);
    painter.translate(square.topLeft());
    painter.scale(square.width() / 24, square.height() / 24);
    painter.setPen(QPen(colors.onAccent, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(QPolygonF({{6, 12.5}, {10.5, 17}, {18, 7.5}}));
}

void drawRadio(QPainter& painter, const QStyleOption& option) {
    const Smooth smooth(painter);
    const PaneColors colors(option.palette);
    const bool enabled = has(option, QStyle::State_Enabled);
    const bool on = has(option, QStyle::State_On);
    const QColor used = enabled ? colors.accent : colors.disabledText;
    const QRectF square = indicatorSquare(option.rect);
    painter.setBrush(colors.card);
    painter.setPen(QPen(on ? used : enabled ? colors.mark : colors.disabledText, 2));
    painter.drawEllipse(square.adjusted(1, 1, -1, -1));
    if (!on)
        return;
    painter.setPen(Qt::NoPen);
    painter.setBrush(used);
    painter.drawEllipse(square.adjusted(6, 6, -6, -6));
}

void drawArrow(QPainter& painter, const QStyleOption& option) {
    const Smooth smooth(painter);
    const PaneColors colors(option.palette);
    const QPointF middle = QRectF(option.rect).center();
    const QColor color = has(option, QStyle::State_Enabled) ? colors.text : colors.disabledText;
    painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPolyline(
        QPolygonF({middle + QPointF(-4, -2), middle + QPointF(0, 2), middle + QPointF(4, -2)}));
}

QRect sliderHandle(const QStyleOptionSlider& option) {
    const int room = option.rect.width() - kIndicator;
    const int place = QStyle::sliderPositionFromValue(
        option.minimum, option.maximum, option.sliderPosition, room, option.upsideDown);
    return QRect(option.rect.x() + place, option.rect.center().y() - kIndicator / 2, kIndicator,
                 kIndicator);
}

void drawSlider(QPainter& painter, const QStyleOptionSlider& option) {
    const Smooth smooth(painter);
    const PaneColors colors(option.palette);
    const QRectF knob = sliderHandle(option);
    QRectF groove(option.rect.x() + kIndicator / 2, knob.center().y() - kGroove / 2,
                  option.rect.width() - kIndicator, kGroove);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.mark);
    painter.drawRoundedRect(groove, kGroove / 2, kGroove / 2);
    const QColor used = has(option, QStyle::State_Enabled) ? colors.accent : colors.disabledText;
    const bool reversed = option.upsideDown;
    (reversed ? groove.setLeft(knob.center().x()) : groove.setRight(knob.center().x()));
    painter.setBrush(used);
    painter.drawRoundedRect(groove, kGroove / 2, kGroove / 2);
    painter.setBrush(colors.card);
    painter.setPen(QPen(used, kRing));
    painter.drawEllipse(knob.adjusted(kRing / 2, kRing / 2, -kRing / 2, -kRing / 2));
    if (has(option, QStyle::State_HasFocus))
        drawBox(painter, QRectF(option.rect), Qt::NoBrush, colors.accent, kRing);
}

QFont headingFont(const QWidget* widget) {
    QFont font = widget ? widget->font() : QApplication::font();
    font.setBold(true);
    return font;
}

int headingHeight(const QStyleOptionGroupBox& option, const QWidget* widget) {
    return option.text.isEmpty() ? 0 : QFontMetrics(headingFont(widget)).height() + kHeadingGap;
}

void drawCard(QPainter& painter, const QStyleOptionGroupBox& option, const QWidget* widget) {
    const Smooth smooth(painter);
    const PaneColors colors(option.palette);
    const int heading = headingHeight(option, widget);
    painter.setFont(headingFont(widget));
    painter.setPen(colors.text);
    painter.drawText(option.rect.adjusted(2, 0, 0, 0), Qt::AlignLeft | Qt::AlignTop, option.text);
    drawBox(painter, QRectF(option.rect.adjusted(0, heading, 0, 0)), colors.card, colors.cardLine,
            1, kCardRadius);
}

} // namespace

bool panestyle::isTight(const QWidget& button) {
    return button.property("isTight").toBool();
}

void panestyle::drawBox(QPainter& painter, const QRectF& bounds, const QBrush& fill,
                        const QColor& border, qreal width, qreal radius) {
    const Smooth smooth(painter);
    painter.setBrush(fill);
    painter.setPen(QPen(border, width));
    const qreal half = width / 2;
    painter.drawRoundedRect(bounds.adjusted(half, half, -half, -half), radius - half,
                            radius - half);
}

void panestyle::drawRing(QPainter& painter, const QWidget& widget, const QRectF& bounds) {
    drawBox(painter, bounds, Qt::NoBrush, PaneColors(widget.palette()).accent, kRing);
}

void PaneStyle::install() {
    if (!dynamic_cast<PaneStyle*>(QApplication::style()))
        QApplication::setStyle(new PaneStyle);
}

void PaneStyle::polish(QPalette& palette) {
    QProxyStyle::polish(palette);
    const PaneColors colors(palette);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colors.disabledText);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
            palette.setColor(group, role, colors.text);
        palette.setColor(group, QPalette::Highlight, colors.accent);
        palette.setColor(group, QPalette::HighlightedText, colors.onAccent);
        palette.setColor(group, QPalette::PlaceholderText, colors.quietText);
    }
}

// Some styles hide the letters until Alt is held.
void PaneStyle::drawItemText(QPainter* painter, const QRect& rect, int flags,
                             const QPalette& palette, bool enabled, const QString& text,
                             QPalette::ColorRole role) const {
    QStyle::drawItemText(painter, rect, flags, palette, enabled, text, role);
}

int PaneStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    if (hint == SH_UnderlineShortcut)
        return 1;
    if (hint == SH_FocusFrame_Mask)
        return 0; // the ring's corners are round
    if (hint == SH_EtchDisabledText || hint == SH_DitherDisabledText)
        return 0; // its own colour tells enough
    return QProxyStyle::styleHint(hint, option, widget, data);
}

int PaneStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                           const QWidget* widget) const {
    switch (metric) {
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_SliderLength:
        return kIndicator;
    // A mouse needs a menu's. Pages also follow the wheel, and need the room.
    case PM_ScrollBarExtent:
        return widget && widget->window()->windowType() == Qt::Popup
                   ? kTarget
                   : QProxyStyle::pixelMetric(metric, option, widget);
    case PM_SliderThickness:
    case PM_SliderControlThickness:
        return kTarget;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin:
        return static_cast<int>(kRing);
    default:
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QSize PaneStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const QSize own = QProxyStyle::sizeFromContents(type, option, size, widget);
    switch (type) {
    case CT_PushButton:
        return (size + QSize(widget && isTight(*widget) ? kTightPadding : kPadding, kPadding / 2))
            .expandedTo({kTarget, kTarget});
    case CT_ToolButton:
        return own.expandedTo({kTarget, kTarget});
    case CT_LineEdit:
    case CT_CheckBox:
    case CT_RadioButton:
        return own.expandedTo({0, kTarget});
    default:
        return own;
    }
}

/// A click anywhere in them counts. Assistive technology is told the same.
QRect PaneStyle::subElementRect(SubElement element, const QStyleOption* option,
                                const QWidget* widget) const {
    return element == SE_CheckBoxClickRect || element == SE_RadioButtonClickRect
               ? option->rect
               : QProxyStyle::subElementRect(element, option, widget);
}

QRect PaneStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                SubControl part, const QWidget* widget) const {
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        slider && control == CC_Slider && slider->orientation == Qt::Horizontal) {
        if (part == SC_SliderHandle)
            return sliderHandle(*slider);
        if (part == SC_SliderGroove)
            return slider->rect;
    }
    if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        box && control == CC_GroupBox) {
        const int heading = headingHeight(*box, widget);
        if (part == SC_GroupBoxContents)
            return box->rect.adjusted(1, heading + 1, -1, -1);
        if (part == SC_GroupBoxLabel)
            return QRect(box->rect.x(), box->rect.y(), box->rect.width(), heading);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

void PaneStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const {
    switch (element) {
    case PE_IndicatorCheckBox:
        return drawCheck(*painter, *option);
    case PE_IndicatorRadioButton:
        return drawRadio(*painter, *option);
    case PE_PanelButtonCommand:
    case PE_PanelButtonTool:
        return drawButton(*painter, *option);
    case PE_PanelLineEdit:
        return drawControlBox(*painter, *option, PaneColors(option->palette).card);
    case PE_FrameLineEdit:
        return; // drawn with its panel
    case PE_IndicatorArrowDown:
        return drawArrow(*painter, *option);
    case PE_Frame:
        return drawBox(*painter, QRectF(option->rect), Qt::NoBrush,
                       PaneColors(option->palette).mark, kBorder);
    case PE_FrameFocusRect:
        // Buttons and fields have the ring as their border.
        if (!qobject_cast<const QAbstractButton*>(widget) &&
            !qobject_cast<const QLineEdit*>(widget))
            drawBox(*painter, QRectF(option->rect), Qt::NoBrush, PaneColors(option->palette).accent,
                    kRing);
        return;
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void PaneStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    if (const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        button && element == CE_PushButtonBevel) {
        drawButton(*painter, *option);
        if (button->features & QStyleOptionButton::HasMenu) {
            QStyleOption arrow = *option;
            const int side = pixelMetric(PM_MenuButtonIndicator, option, widget);
            arrow.rect = visualRect(option->direction, option->rect,
                                    QRect(option->rect.right() - side - 6,
                                          option->rect.center().y() - side / 2, side, side));
            drawPrimitive(PE_IndicatorArrowDown, &arrow, painter, widget);
        }
        return;
    }
    // What lies on the button's own face, in its text's colour, whatever the desktop's style does.
    if (element == CE_PushButtonLabel || element == CE_ToolButtonLabel)
        return QCommonStyle::drawControl(element, option, painter, widget);
    if (element == CE_FocusFrame)
        return drawBox(*painter, QRectF(option->rect), Qt::NoBrush,
                       PaneColors(option->palette).accent, kRing);
    QProxyStyle::drawControl(element, option, painter, widget);
}

void PaneStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        slider && control == CC_Slider && slider->orientation == Qt::Horizontal)
        return drawSlider(*painter, *slider);
    if (const auto* box = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
        box && control == CC_GroupBox && !(box->subControls & SC_GroupBoxCheckBox))
        return drawCard(*painter, *box, widget);
    if (control == CC_ToolButton)
        return QCommonStyle::drawComplexControl(control, option, painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}
