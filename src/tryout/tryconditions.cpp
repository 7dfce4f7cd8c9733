// SPDX-License-Identifier: MIT
#include "src/tryout/tryconditions.h"

#include "src/record/settings.h"

#include <algorithm>
#include <cmath>

namespace tryout {

namespace {

constexpr double kUsualMillimetres = 10;

constexpr SettingRange rangeOf(std::size_t offset) {
    const SettingLimits& limits = settingAt(offset).limits;
    return {limits.minimum, limits.maximum, limits.step};
}

constexpr SettingRange kTimes = rangeOf(offsetof(PrefsRecord, lineScanTime));
constexpr SettingRange kPointerTimes = rangeOf(offsetof(PrefsRecord, pointerScanTime));
static_assert(kTimes.min == kPointerTimes.min && kTimes.max == kPointerTimes.max &&
              kTimes.step == kPointerTimes.step);

/// The part of a screen that is `points` wide or high, from above 0 to 1, which is scanned.
double partOf(bool hasArea, float area, double points) {
    return hasArea ? std::min(double{area} / points, 1.0) : 1;
}

} // namespace

Trigger triggerOf(const PrefsRecord& record) {
    using enum Trigger::Way;
    Trigger trigger;
    const Trigger::Way ways[] = {record.triggerOnRelease ? Release : Press, Hold, Step};
    if (record.scanMode >= 0 && record.scanMode < 3)
        trigger.way = ways[record.scanMode];
    trigger.shortest = record.minTriggerDuration;
    trigger.ignoreAfter = record.afterClickDelay;
    return trigger;
}

Extent targetOf(TargetChoice choice, const PrefsRecord& record, Extent millimetresAPoint) {
    if (choice == kPaletteTarget)
        return {record.buttonSize.width * millimetresAPoint.width,
                record.buttonSize.height * millimetresAPoint.height};
    const bool isOwn = choice >= kLeastTarget && choice <= kLargestTarget;
    const double side = isOwn ? choice : kUsualMillimetres;
    return {side, side};
}

TargetChoice nextTarget(double height, bool isLarger) {
    const double next = isLarger ? std::floor(height + 1) : std::ceil(height - 1);
    const auto kept = std::clamp(next, double{kLeastTarget}, double{kLargestTarget});
    return kept == kUsualMillimetres ? kUsualTarget : static_cast<TargetChoice>(kept);
}

Conditions conditionsOf(const PrefsRecord& record, Extent points, Extent millimetres,
                        TargetChoice target) {
    const ScanArea& area = record.scanArea;
    const bool hasArea = record.useScanArea && area.width > 0 && area.height > 0;
    const Extent scale = {millimetres.width / points.width, millimetres.height / points.height};
    const Extent size = targetOf(target, record, scale);
    const bool snaps = record.snapping && target != kPaletteTarget; // clicks on it have their place
    const auto sweepOf = [&](double travel, double time) {
        return Sweep{.travel = travel,
                     .time = std::clamp(time, kTimes.min, kTimes.max),
                     .accelerates = record.useScanAcceleration != 0};
    };
    Conditions tried = {.sweep = sweepOf(millimetres.height, record.lineScanTime),
                        .target = size.height,
                        .delay = record.preScanDelay,
                        .times = kTimes,
                        .across = size.width,
                        .point = snaps ? std::min(scale.width, scale.height) : 0,
                        .linePart = partOf(hasArea, area.height, points.height),
                        .pointerPart = partOf(hasArea, area.width, points.width)};
    if (triggerOf(record).way != Trigger::Way::Step)
        tried.pointer = sweepOf(millimetres.width, record.pointerScanTime);
    return tried;
}

} // namespace tryout
