#include "src/prefs.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/settings.h"

#include <cstdio>

const CFString* const kAgentBundleID = CFSTR(kAgentBundleIDText);

PrefsRecord prefs;

namespace {

bool prefsNeedSaving = false;

} // namespace

void prefsSetup() {
    for (const Setting& setting : kSettings)
        setting.form->load(CFSTR(setting.key), setting.in(prefs));
}

bool savePrefs() {
    for (const Setting& setting : kSettings)
        setting.form->save(CFSTR(setting.key), setting.in(prefs));
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

void setPrefStr(const CFString* key, const char* text) {
    if (const auto string = CFStringCreateWithCString(text, kCFStringEncodingMacRoman))
        CFPreferencesSetAppValue(key, string.get(), kAgentBundleID);
}

void setPrefDouble(const CFString* key, double value) {
    // The largest double has 309 digits before the point; one that doesn't fit isn't a setting.
    char text[100];
    const int length = std::snprintf(text, sizeof text, "%f", value);
    if (length < static_cast<int>(sizeof text))
        setPrefStr(key, text);
}

void setPrefSInt32(const CFString* key, SInt32 value) {
    char text[64];
    std::snprintf(text, sizeof text, "%ld", static_cast<long>(value));
    setPrefStr(key, text);
}

void setPrefUInt32(const CFString* key, UInt32 value) {
    char text[64];
    std::snprintf(text, sizeof text, "0x%08lx", static_cast<unsigned long>(value));
    setPrefStr(key, text);
}

bool getPrefStr(const CFString* key, char* buffer, CFIndex bufferSize) {
    const auto value = CFPreferencesCopyAppValue(key, kAgentBundleID);
    const auto* string = dynamicCFCast<CFString>(value.get());
    if (!string)
        return false;
    if (CFStringGetCString(string, buffer, bufferSize, kCFStringEncodingMacRoman))
        return true;
    buffer[0] = '\0';
    return false;
}

void getPrefDouble(const CFString* key, double* value) {
    char text[64];
    double parsed;
    if (getPrefStr(key, text, sizeof text) && std::sscanf(text, "%lf", &parsed) == 1)
        *value = parsed;
}

void getPrefUInt32(const CFString* key, UInt32* value) {
    char text[64];
    unsigned long parsed;
    if (getPrefStr(key, text, sizeof text) && std::sscanf(text, "0x%lx", &parsed) == 1)
        *value = static_cast<UInt32>(parsed);
}
