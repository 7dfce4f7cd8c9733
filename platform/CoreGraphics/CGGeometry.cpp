// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGGeometry.h"

#include <algorithm>
#include <cmath>

CGRect CGRectStandardize(CGRect rect) {
    const auto& [origin, size] = rect;
    return {{std::min(origin.x, origin.x + size.width), std::min(origin.y, origin.y + size.height)},
            {std::abs(size.width), std::abs(size.height)}};
}

CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy) {
    const auto [origin, size] = CGRectStandardize(rect);
    return {{origin.x + dx, origin.y + dy}, {size.width - 2 * dx, size.height - 2 * dy}};
}

CGRect CGRectUnion(CGRect a, CGRect b) {
    a = CGRectStandardize(a);
    b = CGRectStandardize(b);
    const CGFloat left = std::min(a.origin.x, b.origin.x);
    const CGFloat top = std::min(a.origin.y, b.origin.y);
    const CGFloat right = std::max(a.origin.x + a.size.width, b.origin.x + b.size.width);
    const CGFloat bottom = std::max(a.origin.y + a.size.height, b.origin.y + b.size.height);
    return {{left, top}, {right - left, bottom - top}};
}
