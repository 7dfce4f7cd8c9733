// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "src/controls/BumperController.h"
#include "src/controls/SliderController.h"
#include "src/record/numbertext.h"

#include <algorithm>
#include <numeric>
#include <string_view>
#include <utility>

namespace {

constexpr NumberKind kindOf(const Setting& setting) {
    return setting.notation == &kRealNotation      ? kNumberKindDouble
           : setting.notation == &kHexWordNotation ? kNumberKindUInt32
                                                   : kNumberKindSInt32;
}

const std::type_info& typeOf(SettingControl control) {
    switch (control) {
    case SettingControl::slider:
        return typeid(SliderController);
    case SettingControl::bumper:
        return typeid(BumperController);
    default:
        return typeid(NSButton);
    }
}

bool isCheckBox(const NSObject& object) {
    return typeid(object) == typeid(NSButton);
}

// The fixed orders, by outlet, in which controls are bound and show their settings. Screen readers
// say values in the order in which they are shown. Controls that aren't named follow in the order
// of the settings.

// clang-format off
constexpr std::string_view kBound[] = {
    "autoRepeatTime", "guideTransparency", "inverseReleaseTime", "stepScanCancelTime",
    "preScanDelayTime", "lineScanTime", "lineTransparency", "menuScanSpeedScaleFactor",
    "minTriggerDuration", "pointerScanTime", "afterClickDelay", "clickTime", "volume", "borderGap",
    "buttonGap", "lineThickness"};
constexpr std::string_view kShownBeforeButtonSizes[] = {
    "autoRepeatTime", "clickTime", "guideTransparency", "preScanDelayTime", "inverseReleaseTime",
    "stepScanCancelTime", "lineScanTime", "lineTransparency", "menuScanSpeedScaleFactor",
    "minTriggerDuration", "pointerScanTime", "afterClickDelay", "volume", "borderGap", "buttonGap"};
constexpr std::string_view kFlags[] = {
    "canScanMenuBarCheck", "lineScanCanEndKybdModeCheck", "playClickSoundsCheck", "playDragPrompts",
    "useScanAccelerationCheck", "wantHotKeyTriggerCheck", "wantMouseClickTriggerCheck"};

// clang-format on

/// The rows of the settings, first those of the outlets.
template <std::size_t Count>
consteval auto rowsFrom(const std::string_view (&outlets)[Count]) {
    std::array<std::size_t, kSettings.size()> rows{};
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    const auto place = [&](std::size_t row) {
        const char* outlet = kSettings[row].outlet;
        const auto* found = std::ranges::find(outlets, outlet ? std::string_view(outlet) : "");
        return std::pair(found - outlets, row);
    };
    std::ranges::sort(rows, {}, place);
    if (place(rows[Count - 1]).first == Count)
        throw "an outlet that no setting has";
    return rows;
}

} // namespace

/// What a row of the table of settings adds to the wrangler's tables.
template <std::size_t Row>
struct PreferenceWrangler::SettingWiring {
    static bool connect(NSObject& owner, NSObject& object) {
        if (typeid(object) != typeOf(kSettings[Row].control))
            return false;
        static_cast<PreferenceWrangler&>(owner).settingControls_[Row] = &object;
        return true;
    }

    static bool isConnected(const NSObject& owner) {
        return static_cast<const PreferenceWrangler&>(owner).settingControls_[Row] != nullptr;
    }

    static void send(NSObject& target, NSObject& sender) {
        static_cast<PreferenceWrangler&>(target).setFlag(kSettings[Row],
                                                         static_cast<NSButton&>(sender));
    }

    static void addTo(std::vector<Outlet>& outlets) {
        constexpr const Setting& kSetting = kSettings[Row];
        if constexpr (kSetting.outlet)
            outlets.push_back({kSetting.outlet, &typeOf(kSetting.control), connect, isConnected});
    }

    static void addTo(std::vector<Action>& actions) {
        if constexpr (kSettings[Row].action)
            actions.push_back({kSettings[Row].action, &typeid(NSButton), isCheckBox, send});
    }
};

template <class Entry>
std::vector<Entry> PreferenceWrangler::withSettings(std::span<const Entry> own) {
    std::vector<Entry> all(own.begin(), own.end());
    [&]<std::size_t... Row>(std::index_sequence<Row...>) {
        (SettingWiring<Row>::addTo(all), ...);
    }
    (std::make_index_sequence<kSettings.size()>());
    return all;
}

template std::vector<Outlet> PreferenceWrangler::withSettings(std::span<const Outlet>);
template std::vector<Action> PreferenceWrangler::withSettings(std::span<const Action>);

void PreferenceWrangler::setupNumbers() {
    for (const std::size_t row : rowsFrom(kBound)) {
        const Setting& setting = kSettings[row];
        const SettingLimits& limits = setting.limits;
        if (auto* number = dynamic_cast<NumberController*>(settingControls_[row]))
            number->setPageSteps(limits.pageSteps);
        if (auto* slider = dynamic_cast<SliderController*>(settingControls_[row]))
            slider->setKind(kindOf(setting), setting.in(prefs), limits.step, setting.changes,
                            limits.format);
        else if (auto* bumper = dynamic_cast<BumperController*>(settingControls_[row]))
            bumper
                ->setKind(kindOf(setting), setting.in(prefs), limits.minimum, limits.maximum,
                          limits.step, setting.changes)
                ->setFormat(limits.format);
    }
}

std::vector<std::string> PreferenceWrangler::layoutFaults() const {
    std::vector<std::string> faults;
    for (std::size_t row = 0; row < kSettings.size(); ++row) {
        const auto* slider = dynamic_cast<const SliderController*>(settingControls_[row]);
        const SettingLimits& limits = kSettings[row].limits;
        if (slider && !slider->hasLimits(limits.minimum, limits.maximum))
            faults.push_back("minValue and maxValue of '" + std::string(kSettings[row].outlet) +
                             "' aren't " + numberText("%g", limits.minimum) + " and " +
                             numberText("%g", limits.maximum));
    }
    return faults;
}

void PreferenceWrangler::loadNumbers(const SettingSet& settings) {
    constexpr auto kRows = rowsFrom(kShownBeforeButtonSizes);
    for (std::size_t i = 0; i < kRows.size(); ++i) {
        if (i == std::size(kShownBeforeButtonSizes))
            palette_.updateButtonSizes();
        if (!settings[kRows[i]])
            continue;
        if (auto* number = dynamic_cast<NumberController*>(settingControls_[kRows[i]]))
            number->update();
    }
}

void PreferenceWrangler::loadFlags() {
    for (const std::size_t row : rowsFrom(kFlags))
        if (auto* check = dynamic_cast<NSButton*>(settingControls_[row]))
            check->setState(*static_cast<UInt8*>(kSettings[row].in(prefs)) ? NSOnState
                                                                           : NSOffState);
}

/// Stores a check box's state in its field and reports the change, even if the value is the same.
void PreferenceWrangler::setFlag(const Setting& setting, const NSButton& sender) {
    *static_cast<UInt8*>(setting.in(prefs)) = sender.state() == NSOnState;
    changed(setting.changes);
}
