// SPDX-License-Identifier: MIT
#include "src/tryout/suggestions.h"

#include "src/record/settingwords.h"

namespace tryout {

std::optional<Suggestion> suggestionOf(const Advice& advice, const Steadiness& steadiness,
                                       const PrefsRecord& record) {
    constexpr double kDifference = 1e-6; ///< between values that count as equal

    if (advice.verdict == Verdict::Change || advice.verdict == Verdict::TryAgain)
        return {};

    const struct {
        const Setting& setting;
        std::optional<double> value;
        bool mayBeLess;
    } rows[] = {
        {settingAt(offsetof(PrefsRecord, pointerScanTime)), advice.pointerTime, true},
        {settingAt(offsetof(PrefsRecord, afterClickDelay)), steadiness.afterClickDelay, false},
        {settingAt(offsetof(PrefsRecord, minTriggerDuration)), steadiness.minTriggerDuration,
         false},
        {settingAt(offsetof(PrefsRecord, preScanDelay)), steadiness.preScanDelay, false},
    };

    for (const auto& [setting, value, mayBeLess] : rows) {
        const double change = value.value_or(0) - settingNumber(setting, record);
        if (value && *value <= setting.limits.maximum &&
            (change > kDifference || (mayBeLess && change < -kDifference)))
            return Suggestion{&setting, *value};
    }
    return {};
}

} // namespace tryout
