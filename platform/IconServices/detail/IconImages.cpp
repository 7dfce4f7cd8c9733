// SPDX-License-Identifier: MIT
#include "platform/IconServices/detail/IconImages.h"

#include <algorithm>
#include <utility>

void IconImages::add(const QSize& size, Decoder decode) {
    if (size.isEmpty())
        return;
    const int side = std::max(size.width(), size.height());
    const auto place = std::ranges::upper_bound(entries_, side, {}, &Entry::side);
    entries_.insert(place, {side, std::move(decode), {}});
}

const QImage& IconImages::imageOf(Entry& entry) {
    if (entry.decode)
        entry.image = std::exchange(entry.decode, nullptr)();
    return entry.image;
}

bool IconImages::anyDecodes() {
    return std::ranges::any_of(entries_, [](Entry& entry) { return !imageOf(entry).isNull(); });
}

QImage IconImages::atLeast(int side) {
    const auto enough = std::ranges::lower_bound(entries_, side, {}, &Entry::side);
    for (auto at = enough; at != entries_.end(); ++at)
        if (!imageOf(*at).isNull())
            return at->image;

    // The largest of the smaller ones. Of equal sizes, the first.
    const Entry* best = nullptr;
    for (auto at = enough; at != entries_.begin();) {
        --at;
        if (best && best->side > at->side)
            break;
        if (!imageOf(*at).isNull())
            best = &*at;
    }
    return best ? best->image : QImage();
}
