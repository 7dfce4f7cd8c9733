// SPDX-License-Identifier: MIT
#include "src/tryout/suggestions.h"

#include "src/settingwords.h"

namespace tryout {

std::vector<Suggestion> suggestionsOf(const Advice& advice, const Steadiness& steadiness,
                                      const PrefsRecord& record) {
    constexpr double kDifference = 1e-6; ///< of values that are the same

    const struct {
        const Setting& setting;
        std::optional<double> value;
        bool mayBeLess;
    } rows[] = {
        {settingAt(offsetof(PrefsRecord, afterClickDelay)), steadiness.afterClickDelay, false},
        {settingAt(offsetof(PrefsRecord, minTriggerDuration)), steadiness.minTriggerDuration,
         false},
        {settingAt(offsetof(PrefsRecord, preScanDelay)), steadiness.preScanDelay, false},
        {settingAt(offsetof(PrefsRecord, pointerScanTime)), advice.pointerTime, true},
    };

    std::vector<Suggestion> suggestions;
    for (const auto& [setting, value, mayBeLess] : rows) {
        const double change = value.value_or(0) - settingNumber(setting, record);
        if (value && *value <= setting.limits.maximum &&
            (change > kDifference || (mayBeLess && change < -kDifference)))
            suggestions.push_back({&setting, *value});
    }
    return suggestions;
}

} // namespace tryout
