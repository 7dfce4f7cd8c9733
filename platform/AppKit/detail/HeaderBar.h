// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

/// The strip at a window's top, parted from what is beneath it.
class HeaderBar final : public QWidget {
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent* event) override;
};
