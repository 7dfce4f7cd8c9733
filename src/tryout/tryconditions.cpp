// SPDX-License-Identifier: MIT
#include "src/tryout/tryconditions.h"

#include "src/settings.h"

#include <algorithm>

namespace tryout {

namespace {

constexpr SInt32 kHoldToScan = 1; ///< of scanMode

constexpr SettingRange rangeOfLineScanTime() {
    for (const Setting& setting : kSettings)
        if (setting.offset == offsetof(PrefsRecord, lineScanTime))
            return {setting.limits.minimum, setting.limits.maximum, setting.limits.step};
    return {};
}

} // namespace

Trigger triggerOf(const PrefsRecord& record) {
    Trigger trigger;
    if (record.scanMode == kHoldToScan)
        trigger.way = Trigger::Way::Hold;
    else if (record.triggerOnRelease)
        trigger.way = Trigger::Way::Release;
    trigger.shortest = record.minTriggerDuration;
    trigger.ignoreAfter = record.afterClickDelay;
    return trigger;
}

Conditions conditionsOf(const PrefsRecord& record, double points, double millimetres) {
    const bool hasArea = record.useScanArea && record.scanArea.height > 0;
    const double height = hasArea ? std::min(double{record.scanArea.height}, points) : points;
    constexpr SettingRange kRange = rangeOfLineScanTime();
    return {.sweep = {.travel = height * millimetres / points,
                      .time = std::clamp(record.lineScanTime, kRange.min, kRange.max),
                      .accelerates = record.useScanAcceleration != 0},
            .delay = record.preScanDelay,
            .times = kRange};
}

} // namespace tryout
