// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The strip at a window's top, with a line beneath.
class HeaderBar final : public QWidget {
public:
    using QWidget::QWidget;

    /// Wrapped texts have room beside the buttons. Otherwise the window would ask for the height of
    /// whole pages, and scroll.
    bool hasHeightForWidth() const override { return false; }

protected:
    void paintEvent(QPaintEvent* event) override;
};
