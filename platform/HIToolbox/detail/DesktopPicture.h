// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

/// Whether windows can be transparent: without a compositing manager what is behind them isn't
/// mixed in.
bool isDesktopComposited();

/// What was on the displays at some time, in the desktop's pixels.
class DesktopPicture {
public:
    /// Takes the displays' present picture. What an earlier one shows is kept: a window may cover
    /// it by now.
    void take();

    /// Null before the first take.
    const QImage& image() const { return image_; }

private:
    QRect place_;
    QImage image_;
};
