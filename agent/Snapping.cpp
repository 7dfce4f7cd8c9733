// SPDX-License-Identifier: MIT
#include "agent/Snapping.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/scan/snapping.h"
#include "src/store/prefs.h"

void Snapping::followLine(const Region& region, double y) {
    if (line_ == y)
        return;
    forget();
    line_ = y;
    CFPreferencesAppSynchronize(kAgentBundleID);
    const SnapSettings settings = readSnapSettings();
    if (!settings.isOn)
        return;
    distance_ = snapDistance(settings.spread, region);
    const Area& all = region.area;
    targets_.lookFor(windows_.shown(), {all.left, y - distance_, all.width, 2 * distance_});
}

std::optional<Area> Snapping::targetAt(Place place) const {
    return snap(place, targets_.found(), distance_);
}

void Snapping::forget() {
    line_.reset();
    targets_.forget();
}
