// SPDX-License-Identifier: MIT
#include "src/store/prefs.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreFoundation/PreferencesMerging.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"
#include "src/record/differences.h"
#include "src/store/recovery.h"

#include <array>

const CFString* const kAgentBundleID = CFSTR(kAgentBundleIDText);

PrefsRecord prefs;

namespace {

bool prefsNeedSaving = false;

/// What is known about a setting. If it was chosen here, a save writes it in any case. Else it
/// gives way to what another program has stored since it was loaded.
struct SettingState {
    CFRef<const CFType> loaded; ///< as stored when it was loaded; null: not there
    bool isChosen = false;      ///< and not saved since then
};

/// One for each row of kSettings. Never destroyed: an exit handler may save.
auto& settingStates = *new std::array<SettingState, kSettings.size()>;

PrefsRecord stored;   ///< the record when it was last loaded or saved
PrefsRecord lastLook; ///< the record when it was last looked through for changes

void noteChanges() {
    for (std::size_t i = 0; i < kSettings.size(); ++i) {
        if (!isSame(kSettings[i], prefs, lastLook)) // what is as stored again isn't chosen
            settingStates[i].isChosen = !isSame(kSettings[i], prefs, stored);
    }
    lastLook = prefs;
}

SettingSet chosenSettings() {
    SettingSet chosen;
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        chosen[i] = settingStates[i].isChosen;
    return chosen;
}

void load(const CFString* key, const PrefsNotation& notation, void* field) {
    notation.read(CFPreferencesCopyAppValue(key, kAgentBundleID).get(), field);
}

void save(const CFString* key, const PrefsNotation& notation, const void* field) {
    if (const auto text = notation.write(field))
        CFPreferencesSetAppValue(key, text.get(), kAgentBundleID);
}

} // namespace

void prefsSetup() {
    for (std::size_t i = 0; i < kSettings.size(); ++i) {
        CFRef<const CFType>& loaded = settingStates[i].loaded;
        loaded = CFPreferencesCopyAppValue(CFSTR(kSettings[i].key), kAgentBundleID);
        kSettings[i].notation->read(loaded.get(), kSettings[i].in(prefs));
    }
    stored = lastLook = prefs;
}

bool savePrefs() {
    noteChanges();
    for (std::size_t i = 0; i < kSettings.size(); ++i) {
        const CFString* key = CFSTR(kSettings[i].key);
        const SettingState& state = settingStates[i];
        save(key, *kSettings[i].notation, kSettings[i].in(prefs));
        if (!state.isChosen)
            preferencesGiveWay(key, state.loaded.get(), kAgentBundleID);
    }
    if (!CFPreferencesAppSynchronize(kAgentBundleID))
        return false;
    for (SettingState& state : settingStates)
        state.isChosen = false;
    stored = prefs;
    recoveryForget();
    return true;
}

void prefsWereChanged(const void* chosen) {
    noteChanges();
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        settingStates[i].isChosen |= kSettings[i].in(prefs) == chosen;
    prefsNeedSaving = true;
}

void prefsStoreBeside() {
    constexpr const Setting& kSetting = settingAt(offsetof(PrefsRecord, snapping));
    if (isSame(kSetting, prefs, stored))
        return;
    save(CFSTR(kSetting.key), *kSetting.notation, kSetting.in(prefs));
    if (CFPreferencesAppSynchronize(kAgentBundleID))
        stored.snapping = prefs.snapping;
}

void prefsKeepChanges() {
    recoveryKeep(prefs, chosenSettings(), stored);
}

void prefsWerentChanged() {
    prefsNeedSaving = false;
}

bool prefsAreAsStored() {
    return differences(prefs, stored).none();
}

void prefsFlushChanges() {
    if (!prefsNeedSaving)
        return;
    prefsWerentChanged();
    savePrefs();
}

bool prefsCommit() {
    if (!prefsNeedSaving && !preferencesAreUnsaved(kAgentBundleID))
        return true;
    prefsWerentChanged();
    return savePrefs();
}

void prefsCleanup() {
    prefsFlushChanges();
}

UInt32 prefsGetUnsignedValue(const CFString* key) {
    UInt32 value = 0;
    getPrefUInt32(key, &value);
    return value;
}

void prefsSetUnsignedValue(const CFString* key, UInt32 value) {
    setPrefUInt32(key, value);
    prefsWereChanged();
}

bool getPrefStr(const CFString* key, char* buffer, CFIndex bufferSize) {
    return copyStoredText(CFPreferencesCopyAppValue(key, kAgentBundleID).get(), buffer, bufferSize);
}

void getPrefDouble(const CFString* key, double* value) {
    load(key, kRealNotation, value);
}

void getPrefUInt32(const CFString* key, UInt32* value) {
    load(key, kHexWordNotation, value);
}

void setPrefStr(const CFString* key, const char* text) {
    save(key, kTextNotation, text);
}

void setPrefDouble(const CFString* key, double value) {
    save(key, kRealNotation, &value);
}

void setPrefSInt32(const CFString* key, SInt32 value) {
    save(key, kDecimalNotation, &value);
}

void setPrefUInt32(const CFString* key, UInt32 value) {
    save(key, kHexWordNotation, &value);
}
