// SPDX-License-Identifier: MIT
#pragma once

#include <QRasterWindow>

#include <functional>
#include <string>
#include <vector>
#include <xcb/xcb.h>

/// A list over all windows, in the middle of the mouse pointer's screen. It is scanned like a menu,
/// by the line alone: a click on a row chooses it. It takes no focus.
class ListWindow final : public QRasterWindow {
public:
    /// `shown` is called when it can be scanned, each time.
    explicit ListWindow(std::function<void()> shown);

    /// Shows these texts, as many as fit on the screen. `chosen` gets the row's number when the
    /// list is closed again.
    void open(std::vector<std::string> rows, std::function<void(std::size_t)> chosen);

    static constexpr int kRowHeight = 44; ///< points

private:
    void exposeEvent(QExposeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;

    std::function<void()> shown_;
    std::vector<std::string> rows_;
    std::function<void(std::size_t)> chosen_;
    bool isNew_ = false; ///< opened, and not told of yet
};
