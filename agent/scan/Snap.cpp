// SPDX-License-Identifier: MIT
#include "agent/scan/Snap.h"

#include "src/scan/snapping.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double kRounding = 2; ///< points that a program's box may be off
constexpr double kFrame = 80;   ///< points that a window's frame takes at most

double distanceTo(const Area& box, Place point) {
    const double x = std::max({box.left - point.x, 0.0, point.x - box.right()});
    const double y = std::max({box.top - point.y, 0.0, point.y - box.bottom()});
    return std::max(x, y);
}

double sizeOf(const Target& target) {
    return target.box.width * target.box.height;
}

} // namespace

std::optional<Area> snap(Place point, std::span<const Target> targets, double distance) {
    const Target* around = nullptr;
    const Target* near = nullptr;
    int count = 0;
    for (const Target& target : targets) {
        if (target.box.contains(point)) {
            if (!around || sizeOf(target) < sizeOf(*around))
                around = &target;
        } else if (target.isPressed && distanceTo(target.box, point) < distance) {
            near = &target;
            ++count;
        }
    }
    if (around)
        return around->isPressed ? std::optional(around->box) : std::nullopt;
    return count == 1 ? std::optional(near->box) : std::nullopt;
}

double snapDistance(double spread, const Region& region) {
    const double speed = std::max(region.area.height / std::max(region.lineTime, 0.001),
                                  region.area.width / std::max(region.pointerTime, 0.001));
    return snapDistance(spread, speed / region.scale) * region.scale;
}

std::optional<ToldPlaces> ToldPlaces::of(const Area& told, const Area& window) {
    if (told.isEmpty() || window.isEmpty())
        return std::nullopt;
    ToldPlaces places;
    places.scale_ = std::round(window.width / told.width * 4) / 4; // desktops scale by quarters
    if (places.scale_ < 1)
        return std::nullopt;
    const double wider = told.width * places.scale_ - window.width;
    const double higher = told.height * places.scale_ - window.height;
    const double rounding = kRounding * places.scale_, frame = kFrame * places.scale_;
    if (std::abs(wider) <= rounding && std::abs(higher) <= rounding) {
        places.told_ = {told.left, told.top};
        places.pixels_ = {window.left, window.top};
    } else if (wider < -rounding || higher < -rounding || wider > frame || higher > frame) {
        return std::nullopt;
    }
    places.misfit_ = std::abs(told.left * places.scale_ - window.left) +
                     std::abs(told.top * places.scale_ - window.top) + std::abs(wider) +
                     std::abs(higher);
    return places;
}

Area ToldPlaces::inPixels(const Area& told) const {
    return {pixels_.x + (told.left - told_.x) * scale_, pixels_.y + (told.top - told_.y) * scale_,
            told.width * scale_, told.height * scale_};
}
