// SPDX-License-Identifier: MIT
#include "agent/scan/Geometry.h"

#include <algorithm>

Area intersection(const Area& a, const Area& b) {
    const double left = std::max(a.left, b.left), top = std::max(a.top, b.top);
    const Area both{left, top, std::min(a.right(), b.right()) - left,
                    std::min(a.bottom(), b.bottom()) - top};
    return both.isEmpty() ? Area{} : both;
}
