// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// A page that scrolls up and down when its contents don't fit. What gets the keyboard, by whatever
/// way, comes into sight.
class PageArea final : public QScrollArea {
public:
    explicit PageArea(QWidget* parent);

    /// Says nothing of the contents, which scroll.
    QSize sizeHint() const override;
    /// As wide as the contents are at least, while the page is the one that is shown.
    QSize minimumSizeHint() const override;

protected:
    void hideEvent(QHideEvent* event) override;
};
