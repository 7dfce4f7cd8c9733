// SPDX-License-Identifier: MIT
#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "src/prefpane/BumperController.h"
#include "src/prefpane/SliderController.h"
#include "src/prefpane/numbertext.h"

#include <utility>

namespace {

constexpr NumberKind kindOf(const Setting& setting) {
    return setting.form == &kRealForm      ? kNumberKindDouble
           : setting.form == &kHexWordForm ? kNumberKindUInt32
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
    for (std::size_t row = 0; row < kSettings.size(); ++row) {
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

void PreferenceWrangler::loadNumbers() {
    for (NSObject* control : settingControls_)
        if (auto* number = dynamic_cast<NumberController*>(control))
            number->update();
}

void PreferenceWrangler::loadFlags() {
    for (std::size_t row = 0; row < kSettings.size(); ++row)
        if (auto* check = dynamic_cast<NSButton*>(settingControls_[row]))
            check->setState(*static_cast<UInt8*>(kSettings[row].in(prefs)) ? NSOnState
                                                                           : NSOffState);
}

/// Writes a check box's state to its field and reports the change, also when the value is the same.
void PreferenceWrangler::setFlag(const Setting& setting, const NSButton& sender) {
    *static_cast<UInt8*>(setting.in(prefs)) = sender.state() == NSOnState;
    changed(setting.changes);
}
