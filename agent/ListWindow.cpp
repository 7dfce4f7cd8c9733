// SPDX-License-Identifier: MIT
#include "agent/ListWindow.h"

#include <QCursor>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPalette>
#include <QScreen>

#include <algorithm>
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

} // namespace

ListWindow::ListWindow(std::function<void()> shown) : shown_(std::move(shown)) {
    setFlags(Qt::FramelessWindowHint | Qt::BypassWindowManagerHint | Qt::WindowStaysOnTopHint |
             Qt::WindowDoesNotAcceptFocus);
}

void ListWindow::open(std::vector<std::string> rows, std::function<void(std::size_t)> chosen) {
    const QScreen* screen = QGuiApplication::screenAt(QCursor::pos());
    const QRect around = (screen ? screen : QGuiApplication::primaryScreen())->availableGeometry();
    rows.resize(std::min(rows.size(), static_cast<std::size_t>(around.height() / kRowHeight)));
    rows_ = std::move(rows);
    chosen_ = std::move(chosen);
    const QFontMetrics metrics(listFont());
    int width = 0;
    for (const std::string& row : rows_)
        width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(row)));
    QRect place(0, 0, std::min({width + 2 * kMargin, kMostWidth, around.width()}),
                static_cast<int>(rows_.size()) * kRowHeight);
    place.moveCenter(around.center());
    setGeometry(place);
    isNew_ = true;
    show();
    raise();
    requestUpdate();
}

void ListWindow::exposeEvent(QExposeEvent* event) {
    QRasterWindow::exposeEvent(event);
    if (isExposed() && std::exchange(isNew_, false))
        shown_();
}

void ListWindow::paintEvent(QPaintEvent*) {
    const QPalette colours = QGuiApplication::palette();
    QPainter painter(this);
    painter.fillRect(QRect({}, size()), colours.base());
    painter.setFont(listFont());
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        const QRect row(0, static_cast<int>(i) * kRowHeight, width(), kRowHeight);
        const QRect place = row.adjusted(kMargin, 0, -kMargin, 0);
        const QString text = painter.fontMetrics().elidedText(QString::fromStdString(rows_[i]),
                                                              Qt::ElideRight, place.width());
        painter.setPen(colours.color(QPalette::Text));
        painter.drawText(place, Qt::AlignVCenter | Qt::AlignLeading, text);
        painter.setPen(colours.color(QPalette::Mid));
        painter.drawRect(row.adjusted(0, 0, -1, i + 1 == rows_.size() ? -1 : 0));
    }
}

void ListWindow::mousePressEvent(QMouseEvent* event) {
    const auto row = static_cast<std::size_t>(std::max(0.0, event->position().y()) / kRowHeight);
    hide();
    if (row < rows_.size())
        std::exchange(chosen_, nullptr)(row);
}
