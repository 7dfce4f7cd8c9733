// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Region.h"
#include "agent/session/OverlayWindow.h"

#include <optional>
#include <string>

/// A list over all windows, in the middle of a screen. It is scanned like a menu, by the line
/// alone: a click on a row chooses it. It takes no focus. Needs a QGuiApplication, whose font and
/// colours it has.
class ListWindow {
public:
    /// `windows` must outlive it.
    explicit ListWindow(OverlayWindows& windows);

    /// Shows these texts, as many as fit on the screen. `chosen` gets the row's number when the
    /// list is closed again.
    void open(std::vector<std::string> rows, const Screen& screen,
              std::function<void(std::size_t)> chosen);
    void close();

    /// While it is open.
    std::optional<Area> place() const;

    static constexpr int kRowHeight = 44; ///< points

private:
    void choose(QPoint place);

    OverlayWindows& windows_;
    std::unique_ptr<OverlayWindow> window_;
    QRect place_;                   ///< pixels; empty while it is closed
    double rowHeight_ = kRowHeight; ///< pixels
    std::size_t count_ = 0;         ///< of rows
    std::function<void(std::size_t)> chosen_;
};
