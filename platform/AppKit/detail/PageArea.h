// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// A page that scrolls up and down when its contents don't fit, and asks for room for all of them.
/// What gets the keyboard, by whatever way, comes into sight.
class PageArea final : public QScrollArea {
public:
    explicit PageArea(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
};
