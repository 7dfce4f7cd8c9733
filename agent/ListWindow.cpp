// SPDX-License-Identifier: MIT
#include "agent/ListWindow.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr int kMargin = 12; ///< points, beside a text
constexpr int kMostWidth = 600;
constexpr double kFontScale = 1.4; ///< of the desktop's font

QFont listFont() {
    QFont font = QGuiApplication::font();
    font.setPointSizeF(font.pointSizeF() * kFontScale);
    return font;
}

/// In points.
QSize sizeOf(const std::vector<std::string>& rows, double mostWidth) {
    const QFontMetricsF metrics(listFont());
    double width = 0;
    for (const std::string& row : rows)
        width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(row)));
    return {std::min({static_cast<int>(std::ceil(width)) + 2 * kMargin, kMostWidth,
                      static_cast<int>(mostWidth)}),
            static_cast<int>(rows.size()) * ListWindow::kRowHeight};
}

QImage picture(const std::vector<std::string>& rows, QSize size, double scale) {
    QImage image((QSizeF(size) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(scale);
    const QPalette colours = QGuiApplication::palette();
    image.fill(colours.color(QPalette::Base));
    QPainter painter(&image);
    painter.setFont(listFont());
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const QRect row(0, static_cast<int>(i) * ListWindow::kRowHeight, size.width(),
                        ListWindow::kRowHeight);
        const QRect place = row.adjusted(kMargin, 0, -kMargin, 0);
        const QString text = painter.fontMetrics().elidedText(QString::fromStdString(rows[i]),
                                                              Qt::ElideRight, place.width());
        painter.setPen(colours.color(QPalette::Text));
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeading, text);
        painter.setPen(colours.color(QPalette::Mid));
        painter.drawRect(row.adjusted(0, 0, -1, i + 1 == rows.size() ? -1 : 0));
    }
    return image;
}

} // namespace

ListWindow::ListWindow(OverlayWindows& windows) : windows_(windows), window_(windows.make()) {
    window_->takeClicks([this](QPoint place) { choose(place); });
}

void ListWindow::open(std::vector<std::string> rows, const Screen& screen,
                      std::function<void(std::size_t)> chosen) {
    const QSizeF room = QSizeF(screen.area.width, screen.area.height - screen.panel) / screen.scale;
    rows.resize(std::min(rows.size(), static_cast<std::size_t>(room.height() / kRowHeight)));
    const QImage image = picture(rows, sizeOf(rows, room.width()), screen.scale);
    const Place middle = screen.area.middle();
    place_ = QRect(QPoint(), image.size());
    place_.moveCenter(QPointF(middle.x, middle.y + screen.panel / 2).toPoint());
    rowHeight_ = kRowHeight * screen.scale;
    count_ = rows.size();
    chosen_ = std::move(chosen);
    window_->paint(image);
    window_->show(place_, nullptr);
    windows_.flush();
}

void ListWindow::close() {
    place_ = {};
    window_->hide();
    windows_.flush();
}

std::optional<Area> ListWindow::place() const {
    if (place_.isEmpty())
        return std::nullopt;
    return Area{double(place_.x()), double(place_.y()), double(place_.width()),
                double(place_.height())};
}

void ListWindow::choose(QPoint place) {
    const auto row = static_cast<std::size_t>(std::max(0, place.y()) / rowHeight_);
    close();
    if (row < count_)
        std::exchange(chosen_, nullptr)(row);
}
