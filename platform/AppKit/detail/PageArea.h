// SPDX-License-Identifier: MIT
#pragma once

#include <QScrollArea>

/// A page that scrolls up and down when its contents don't fit. The control that gets the focus is
/// scrolled into view.
class PageArea final : public QScrollArea {
public:
    explicit PageArea(QWidget* parent);

    /// Independent of the contents, since they scroll.
    QSize sizeHint() const override;
    /// As wide as the contents' minimum while the page is shown.
    QSize minimumSizeHint() const override;

protected:
    void hideEvent(QHideEvent* event) override;
};
