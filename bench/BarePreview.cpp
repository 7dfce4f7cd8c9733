// SPDX-License-Identifier: MIT
#include "bench/BarePreview.h"

#include <QImage>
#include <QPainter>
#include <QStyleOptionButton>
#include <QWidget>

namespace {

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

} // namespace

void drawBarePreview(QWidget& widget, QPainter& painter) {
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * 10 / 12);
    painter.setFont(font);
    painter.fillRect(QRect(QPoint(), kPreviewSize), Qt::lightGray);
    painter.fillRect(1, 67, kPreviewSize.width() - 2, 7, QColor(100, 0, 0, 242));
    painter.drawText(kPreviewSize.width() - 60, 84, QStringLiteral("Scan Line"));
    painter.fillRect(0, 45, 102, 50, widget.palette().window());
    drawButton(widget, painter, 10, "Click");
    drawButton(widget, painter, 56, "Double");
    painter.drawRect(0, 45, 101, 49);
    const QString pointers = QString::fromUtf8(kBenchAgent) + "/Contents/Resources/Pointers/";
    painter.drawImage(207, 70, QImage(pointers + "default.png", "png"));
    painter.drawRect(0, 0, kPreviewSize.width() - 1, kPreviewSize.height() - 1);
}
