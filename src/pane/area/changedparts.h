// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGGeometry.h"

#include <array>
#include <cstddef>

/// What a frame of the scan-area chooser shows.
struct ShownAreas {
    CGRect current;
    CGRect dragged;
    bool dragging; ///< the dragged area is shown, and the current one is pale
};

/// The parts of a frame that differ from the frame before. Drawing only these keeps a drag over
/// large displays smooth.
class ChangedParts {
public:
    ChangedParts(const ShownAreas& before, const ShownAreas& now);

    const CGRect* rects() const { return rects_.data(); }

    std::size_t count() const { return count_; }

    /// Whether any of the area, whose sides are zero or more, lies in one of them.
    bool touch(const CGRect& area) const;

private:
    void addWhole(const CGRect& area);
    void addBetween(const CGRect& before, const CGRect& now);
    void add(const CGRect& part);

    std::array<CGRect, 8> rects_; ///< at most four bands per area
    std::size_t count_ = 0;
};
