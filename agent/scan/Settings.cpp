// SPDX-License-Identifier: MIT
#include "agent/scan/Settings.h"

#include "src/record/palactions.h"
#include "src/record/settings.h"
#include "src/record/settingwords.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>

namespace {

constexpr double kLongestPause = 1000; ///< milliseconds, between the clicks of a double click
constexpr UInt16 kBrightest = 255;

/// No number becomes the least.
double within(const SettingLimits& limits, double value) {
    return value > limits.minimum ? std::min(value, limits.maximum) : limits.minimum;
}

/// A field of up to four bytes is less than `count`, or becomes 0.
void checkChoice(const Setting& setting, std::size_t count, PrefsRecord& record) {
    UInt32 choice = 0;
    std::memcpy(&choice, setting.in(record), setting.size); // little-endian, like the record
    if (choice >= count)
        std::memset(setting.in(record), 0, setting.size);
}

void checkFlag(const Setting& setting, PrefsRecord& record) {
    auto& flag = *static_cast<UInt8*>(setting.in(record));
    flag = flag != 0;
}

/// What the table says of every setting.
void check(const Setting& setting, PrefsRecord& record) {
    if (setting.isNumber())
        setSettingNumber(setting, within(setting.limits, settingNumber(setting, record)), record);
    else if (!setting.choices.empty())
        checkChoice(setting, setting.choices.size(), record);
    else if (setting.notation == &kFlagNotation)
        checkFlag(setting, record);
}

SInt16 checkedSide(SInt16 side) {
    return std::clamp<SInt16>(side, kMinButtonSize, kMaxButtonSize);
}

/// Those that are no single number.
void checkOthers(PrefsRecord& record) {
    const double pause = record.interClickDelay;
    record.interClickDelay = std::isfinite(pause) ? within({0, kLongestPause}, pause) : 0;
    const auto [x, y, width, height] = record.scanArea;
    if (!std::isfinite(x + y + width + height))
        record.scanArea = {};
    for (UInt16* part : {&record.lineColor.red, &record.lineColor.green, &record.lineColor.blue})
        *part = std::min(*part, kBrightest);
    char(&pointer)[sizeof record.pointerImageName] = record.pointerImageName;
    if (pointer[0] == 0 ||
        std::find(std::begin(pointer), std::end(pointer), 0) == std::end(pointer))
        std::strcpy(pointer, "default");
    record.buttonSize.height = checkedSide(record.buttonSize.height);
    record.buttonSize.width = checkedSide(record.buttonSize.width);
    record.buttonContent &= kButtonContentIcon | kButtonContentName;
    for (UInt8& action : record.buttonActions)
        if (action >= kNumActions)
            action = kEmptyAction;
}

} // namespace

PrefsRecord checkedRecord(const PrefsRecord& record) {
    PrefsRecord checked = record;
    for (const Setting& setting : kSettings)
        check(setting, checked);
    checkOthers(checked);
    return checked;
}
