// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The strip at a window's top, parted from what is beneath it.
class HeaderBar final : public QWidget {
public:
    using QWidget::QWidget;

    /// A text that wraps has room beside the buttons. Told otherwise, the window would ask for the
    /// height of whole pages, and scroll.
    bool hasHeightForWidth() const override { return false; }

protected:
    void paintEvent(QPaintEvent* event) override;
};
