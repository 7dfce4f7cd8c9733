// SPDX-License-Identifier: MIT
#include "src/pane/area/changedparts.h"

#include <algorithm>
#include <cmath>

namespace {

/// From an area's edge to the outside of its border, plus a point for antialiasing.
constexpr CGFloat kBorderReach = 1.5F;

} // namespace

ChangedParts::ChangedParts(const ShownAreas& before, const ShownAreas& now) {
    if (before.dragging == now.dragging) {
        addBetween(before.current, now.current);
        if (now.dragging)
            addBetween(before.dragged, now.dragged);
        return;
    }
    addWhole(before.current);
    addWhole(now.current);
    addWhole(before.dragging ? before.dragged : now.dragged);
}

bool ChangedParts::touch(const CGRect& area) const {
    const auto overlap = [](CGFloat a, CGFloat aSize, CGFloat b, CGFloat bSize) {
        return a < b + bSize && b < a + aSize;
    };
    return std::any_of(rects(), rects() + count(), [&](const CGRect& part) {
        return overlap(part.origin.x, part.size.width, area.origin.x, area.size.width) &&
               overlap(part.origin.y, part.size.height, area.origin.y, area.size.height);
    });
}

void ChangedParts::addWhole(const CGRect& area) {
    add(CGRectStandardize(area));
}

/// Two rectangles differ only between their left edges, right edges, tops and bottoms. So four
/// bands, one for each side, cover every difference.
void ChangedParts::addBetween(const CGRect& before, const CGRect& now) {
    const CGRect a = CGRectStandardize(before);
    const CGRect b = CGRectStandardize(now);
    const CGRect both = CGRectUnion(a, b);
    const auto addColumn = [&](CGFloat x1, CGFloat x2) {
        if (x1 != x2)
            add(CGRectMake(std::min(x1, x2), both.origin.y, std::abs(x2 - x1), both.size.height));
    };
    const auto addRow = [&](CGFloat y1, CGFloat y2) {
        if (y1 != y2)
            add(CGRectMake(both.origin.x, std::min(y1, y2), both.size.width, std::abs(y2 - y1)));
    };
    addColumn(a.origin.x, b.origin.x);
    addColumn(a.origin.x + a.size.width, b.origin.x + b.size.width);
    addRow(a.origin.y, b.origin.y);
    addRow(a.origin.y + a.size.height, b.origin.y + b.size.height);
}

void ChangedParts::add(const CGRect& part) {
    rects_[count_++] = CGRectInset(part, -kBorderReach, -kBorderReach);
}
