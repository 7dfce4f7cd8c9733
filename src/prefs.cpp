#include "src/prefs.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/settings.h"

const CFString* const kAgentBundleID = CFSTR(kAgentBundleIDText);

PrefsRecord prefs;

namespace {

bool prefsNeedSaving = false;

void load(const CFString* key, const PrefsForm& form, void* field) {
    form.read(CFPreferencesCopyAppValue(key, kAgentBundleID).get(), field);
}

void save(const CFString* key, const PrefsForm& form, const void* field) {
    if (const auto text = form.write(field))
        CFPreferencesSetAppValue(key, text.get(), kAgentBundleID);
}

} // namespace

void prefsSetup() {
    for (const Setting& setting : kSettings)
        load(CFSTR(setting.key), *setting.form, setting.in(prefs));
}

bool savePrefs() {
    for (const Setting& setting : kSettings)
        save(CFSTR(setting.key), *setting.form, setting.in(prefs));
    return CFPreferencesAppSynchronize(kAgentBundleID);
}

void prefsWereChanged() {
    prefsNeedSaving = true;
}

void prefsWerentChanged() {
    prefsNeedSaving = false;
}

void prefsFlushChanges() {
    if (!prefsNeedSaving)
        return;
    prefsWerentChanged();
    savePrefs();
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
    load(key, kRealForm, value);
}

void getPrefUInt32(const CFString* key, UInt32* value) {
    load(key, kHexWordForm, value);
}

void setPrefStr(const CFString* key, const char* text) {
    save(key, kTextForm, text);
}

void setPrefDouble(const CFString* key, double value) {
    save(key, kRealForm, &value);
}

void setPrefSInt32(const CFString* key, SInt32 value) {
    save(key, kDecimalForm, &value);
}

void setPrefUInt32(const CFString* key, UInt32 value) {
    save(key, kHexWordForm, &value);
}
