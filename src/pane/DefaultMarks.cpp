// SPDX-License-Identifier: MIT
#include "src/pane/DefaultMarks.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTabView.h"
#include "platform/AppKit/RowMarks.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/record/settingwords.h"
#include "src/scan/palutil.h"
#include "src/store/defaults.h"
#include "src/store/prefs.h"
#include "src/store/profiles.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

/// The row of kSettings with that byte of the record.
std::size_t rowAt(std::size_t offset) {
    const auto after = std::ranges::upper_bound(kSettings, offset, {}, &Setting::offset);
    return static_cast<std::size_t>(after - kSettings.begin()) - 1;
}

/// Of two records that are copies of `prefs` with changes: they have the same unused bytes. Quicker
/// than `differences`.
bool isSame(const PrefsRecord& a, const PrefsRecord& b) {
    constexpr std::size_t kName = offsetof(PrefsRecord, pointerImageName),
                          kAfter = kName + sizeof a.pointerImageName;
    const auto *one = reinterpret_cast<const UInt8*>(&a),
               *other = reinterpret_cast<const UInt8*>(&b);
    return std::equal(one, one + kName, other) &&
           std::equal(one + kAfter, one + sizeof a, other + kAfter) &&
           isSame(settingAt(kName), a, b);
}

/// The title of a section's button, or of the button for all.
std::string resetTitle(int count, bool all) {
    if (count == 0)
        return all ? localized("Changes", "Reset everything")
                   : localized("Changes", "Nothing to reset");
    if (all)
        return count == 1 ? localized("Changes", "Reset everything: 1 setting")
                          : localized("Changes", "Reset everything: %n settings", "", count);
    return count == 1 ? localized("Changes", "Reset 1 setting")
                      : localized("Changes", "Reset %n settings", "", count);
}

} // namespace

void DefaultMarks::setup(std::vector<Place> places, const NSView& tabs, PutBack putBack) {
    places_ = std::move(places);
    tabs_ = &tabs;
    putBack_ = std::move(putBack);
    resets_.clear();
    for (NSButton* button :
         {scanningResetBtn, pressesResetBtn, lookResetBtn, paletteResetBtn, generalResetBtn}) {
        SettingSet settings;
        for (const Place& place : places_)
            if (pageOf(place.view) == pageOf(button))
                settings.set(rowAt(place.offset));
        resets_.push_back({button, settings & profileSettings()});
    }
    resets_.push_back({allResetBtn, profileSettings()});
}

bool DefaultMarks::Place::isSameIn(const PrefsRecord& a, const PrefsRecord& b) const {
    const auto* one = reinterpret_cast<const UInt8*>(&a) + offset;
    const auto* other = reinterpret_cast<const UInt8*>(&b) + offset;
    return std::equal(one, one + size, other,
                      [this](UInt8 x, UInt8 y) { return ((x ^ y) & bits) == 0; });
}

NSView* DefaultMarks::viewOf(const SettingSet& settings, const PrefsRecord& before,
                             const PrefsRecord& after) const {
    NSView* view = nullptr;
    std::size_t first = sizeof(PrefsRecord); // the record's bytes are in the settings' order
    for (const Place& place : places_)
        if (settings[rowAt(place.offset)] && place.offset < first &&
            !place.isSameIn(before, after)) {
            view = place.view;
            first = place.offset;
        }
    return view;
}

const NSView* DefaultMarks::pageOf(const NSView* view) const {
    while (view && view->superview() != tabs_)
        view = view->superview();
    return view;
}

PrefsRecord DefaultMarks::withDefault(const Place& place) const {
    PrefsRecord record = prefs;
    auto* to = reinterpret_cast<UInt8*>(&record) + place.offset;
    const auto* from = reinterpret_cast<const UInt8*>(&defaults_) + place.offset;
    for (std::size_t i = 0; i < place.size; ++i)
        to[i] = static_cast<UInt8>((to[i] & ~place.bits) | (from[i] & place.bits));
    if (!isUsable(record.scanArea))
        record.useScanArea = 0; // as the window would do, in a second change
    return record;
}

void DefaultMarks::begin() {
    defaults_ = defaultRecord();
    update(true);
}

void DefaultMarks::update(bool all) {
    if (!all && isSame(marked_, prefs))
        return;
    const SettingSet changed = all ? ~SettingSet() : differences(marked_, prefs);
    marked_ = prefs;
    for (std::size_t i = 0; i < places_.size(); ++i)
        if (changed[rowAt(places_[i].offset)])
            markPlace(i);
    updateResets();
}

void DefaultMarks::markPlace(std::size_t place) {
    const PrefsRecord after = withDefault(places_[place]);
    const auto doesTheSame = [&](const Place& each) { return isSame(withDefault(each), after); };
    // A whole shows no button while one of its parts offers the same.
    const Place* here = places_.data() + place;
    const bool isNeeded = !isSame(after, prefs) && std::none_of(here - place, here, doesTheSame);
    const Setting& setting = kSettings[rowAt(here->offset)];
    setRowMark(*here->view, isNeeded ? putBackText(setting, prefs, after) : "",
               [this, place] { putPlaceBack(place); });
}

void DefaultMarks::updateResets() {
    const SettingSet different = differences(prefs, defaults_);
    for (const auto& [button, settings] : resets_) {
        const auto count = static_cast<int>((different & settings).count());
        button->setTitle(resetTitle(count, button == allResetBtn));
        button->setEnabled(count > 0);
    }
}

void DefaultMarks::putPlaceBack(std::size_t place) {
    const PrefsRecord after = withDefault(places_[place]);
    putBack_(differences(prefs, after), after);
}

void DefaultMarks::resetSettings(NSButton* sender) {
    const auto reset = std::ranges::find(resets_, sender, &Reset::button);
    if (reset == resets_.end())
        return;
    const SettingSet different = differences(prefs, defaults_) & reset->settings;
    if (different.any())
        putBack_(different, defaults_);
}
