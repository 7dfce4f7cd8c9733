// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

/// Whether windows can be transparent. That needs a compositing manager.
bool isDesktopComposited();

/// A picture of all displays, in the desktop's pixels.
class DesktopPicture {
public:
    /// Takes a picture of the displays. An earlier one keeps its content: by now a window may cover
    /// that.
    void take();

    /// Null before the first take.
    const QImage& image() const { return image_; }

private:
    QRect place_;
    QImage image_;
};
