// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

/// The desktop's style with clear marks, rings and targets: a ring of 3 points around the focused
/// control, borders and indicators with a contrast of at least 3 : 1, controls of at least 44
/// points, rows in quiet cards. All colours come from the palette.
class PaneStyle final : public QProxyStyle {
public:
    /// Makes it the application's style. A second call does nothing.
    static void install();

    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    void drawItemText(QPainter* painter, const QRect& rect, int flags, const QPalette& palette,
                      bool enabled, const QString& text, QPalette::ColorRole role) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
};

namespace panestyle {

constexpr int kTarget = 44;    ///< points, the least side of what can be clicked
constexpr int kIndicator = 24; ///< of a check box, a radio button, a slider's knob
constexpr qreal kRing = 3;     ///< the width of the ring around what has the keyboard
constexpr qreal kBorder = 1.5;
constexpr qreal kRadius = 8; ///< of a control's corners

/// Whether a button has less room beside its text: its property `isTight`.
bool isTight(const QWidget& button);

/// Draws a rounded box with the border inside `bounds`.
void drawBox(QPainter& painter, const QRectF& bounds, const QBrush& fill, const QColor& border,
             qreal width, qreal radius = kRadius);

/// Draws the ring around the focused control.
void drawRing(QPainter& painter, const QWidget& widget, const QRectF& bounds);

} // namespace panestyle
