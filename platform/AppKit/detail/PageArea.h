// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// A page that scrolls up and down when its contents don't fit. What gets the keyboard, by whatever
/// way, comes into sight.
class PageArea final : public QScrollArea {
public:
    explicit PageArea(QWidget* parent);

    QSize minimumSizeHint() const override;
};
