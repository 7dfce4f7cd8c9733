#include "src/prefs.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/prefsforms.h"

#include <cstdio>

const CFString* const kAgentBundleID = CFSTR(kAgentBundleIDText);

PrefsRecord prefs;

namespace {

bool prefsNeedSaving = false;

/// One stored setting: its key, the form of its text, and its place in the record.
struct StoredField {
    const char* key;
    const PrefsForm* form;
    std::size_t offset;

    void* address() const { return reinterpret_cast<UInt8*>(&prefs) + offset; }
};

// Loading and saving both walk this table.
#define FIELD(key, form, field)                                                                    \
    { key, &form, offsetof(PrefsRecord, field) }
constexpr StoredField kStoredFields[] = {
    FIELD("on", kFlagForm, on),
    FIELD("playClickSounds", kFlagForm, playClickSounds),
    FIELD("playDragPrompts", kFlagForm, playDragPrompts),
    FIELD("priorityScheduling", kFlagForm, priorityScheduling),
    FIELD("launchAtLogin", kFlagForm, launchAtLogin),
    FIELD("activateAtLaunch", kFlagForm, activateAtLaunch),
    FIELD("soundLevel", kHexWordForm, soundLevel),
    FIELD("scanner.canScanMenuBar", kFlagForm, canScanMenuBar),
    FIELD("scanner.minTriggerDuration", kRealForm, minTriggerDuration),
    FIELD("scanner.afterClickDelay", kRealForm, afterClickDelay),
    FIELD("scanner.preScanDelay", kRealForm, preScanDelay),
    FIELD("scanner.inverseReleaseTime", kRealForm, inverseReleaseTime),
    FIELD("scanner.stepScanCancelTime", kRealForm, stepScanCancelTime),
    FIELD("scanner.wantHotKeyTrigger", kFlagForm, wantHotKeyTrigger),
    FIELD("scanner.wantMouseClickTrigger", kFlagForm, wantMouseClickTrigger),
    FIELD("scanner.triggerOnRelease", kFlagForm, triggerOnRelease),
    FIELD("scanner.fakeMouse2SwitchMode", kFlagForm, fakeMouse2SwitchMode),
    FIELD("scanner.scanMode", kDecimalForm, scanMode),
    FIELD("scanner.scanArea", kRectangleForm, scanArea),
    FIELD("scanner.useScanArea", kFlagForm, useScanArea),
    FIELD("scanner.lineScanCanEndKybdMode", kFlagForm, lineScanCanEndKybdMode),
    FIELD("scanner.lineScanTime", kRealForm, lineScanTime),
    FIELD("scanner.pointerScanTime", kRealForm, pointerScanTime),
    FIELD("scanner.menuScanSpeedScaleFactor", kRealForm, menuScanSpeedScaleFactor),
    FIELD("scanner.useScanAcceleration", kFlagForm, useScanAcceleration),
    FIELD("scanner.autoRepeatTime", kRealForm, autoRepeatTime),
    FIELD("scanner.clickDuration", kRealForm, clickDuration),
    FIELD("scanner.interClickDelay", kRealForm, interClickDelay),
    FIELD("scanner.lineColor", kColourForm, lineColor),
    FIELD("scanner.lineThickness", kDecimalForm, lineThickness),
    FIELD("scanner.lineTransparency", kRealForm, lineTransparency),
    FIELD("scanner.lineGhostTransparency", kRealForm, lineGhostTransparency),
    FIELD("scanner.pointerImageName", kTextForm, pointerImageName),
    FIELD("hotkeys.keys", kHotKeyListForm, hotKeys),
    FIELD("palette.borderGap", kDecimalForm, borderGap),
    FIELD("palette.buttonGap", kDecimalForm, buttonGap),
    FIELD("palette.buttonSize", kSizeForm, buttonSize),
    FIELD("palette.buttonShape", kHexWordForm, buttonShape),
    FIELD("palette.buttonContent", kHexWordForm, buttonContent),
    FIELD("palette.buttonActions", kActionListForm, buttonActions),
};
#undef FIELD

} // namespace

void prefsSetup() {
    for (const StoredField& field : kStoredFields)
        field.form->load(CFSTR(field.key), field.address());
}

bool savePrefs() {
    for (const StoredField& field : kStoredFields)
        field.form->save(CFSTR(field.key), field.address());
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
