// SPDX-License-Identifier: MIT
#include "src/link/openwindow.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreServices/AppleEvents.h"
#include "platform/CoreServices/Processes.h"
#include "src/record/settingcheck.h"
#include "src/store/defaults.h"

#include <cstring>

namespace {

constexpr OSType kWindowSignature = fourCharCode("sprf");
constexpr AEEventClass kEventClass = fourCharCode("Krvx");
constexpr AEEventID kSetSettings = fourCharCode("PSet");
constexpr AEKeyword keySettings = fourCharCode("Sets");
constexpr DescType typePrefsRecord = fourCharCode("KrPf");
constexpr DescType typeBits = fourCharCode("comp");
constexpr SInt32 kPatience = 5 * 60; // ticks

void (*takeChange)(const SettingSet& settings, const PrefsRecord& record) = nullptr;

/// Takes the settings out of an event's bytes, each like a value from a file: as its text, if that
/// is valid. An administrator's default is taken as it is. False, and `taken` is of no use, when
/// one can't be taken.
bool takeSettings(const SettingSet& settings, const PrefsRecord& sent, PrefsRecord& taken) {
    const PrefsRecord defaults = defaultRecord();
    for (std::size_t i = 0; i < kSettings.size(); ++i) {
        const Setting& setting = kSettings[i];
        if (!settings[i])
            continue;
        const void* field = setting.in(sent);
        if (setting.notation == &kTextNotation && !std::memchr(field, '\0', setting.size))
            return false;
        if (isSame(setting, sent, defaults))
            std::memcpy(setting.in(taken), setting.in(defaults), setting.size);
        else if (!setFromValue(setting, setting.notation->write(field).get(), taken).empty())
            return false;
    }
    return true;
}

OSErr handleSetSettings(const AppleEvent* event, AppleEvent*, void*) {
    PrefsRecord record = prefs; // what lies beside the agent's record may be missing
    std::uint64_t bits = 0;
    std::size_t recordSize = 0, bitsSize = 0;
    if (const OSErr error = AEGetParamPtr(event, keyDirectObject, typePrefsRecord, nullptr, &record,
                                          sizeof record, &recordSize))
        return error;
    if (const OSErr error =
            AEGetParamPtr(event, keySettings, typeBits, nullptr, &bits, sizeof bits, &bitsSize))
        return error;
    PrefsRecord taken = prefs;
    const SettingSet settings(bits);
    if (recordSize < kRecordSize || recordSize > sizeof record || bitsSize != sizeof bits ||
        settings.to_ullong() != bits || !takeSettings(settings, record, taken))
        return paramErr;
    takeChange(settings, taken);
    return noErr;
}

} // namespace

std::optional<std::string> sendToWindow(const SettingSet& settings, const PrefsRecord& record) {
    const ProcessSerialNumber window = findApplication(kWindowSignature);
    if (window == kNoProcess)
        return std::nullopt;
    const std::uint64_t bits = settings.to_ullong();
    AEAddressDesc address;
    AppleEvent event, reply;
    if (AECreateDesc(typeProcessSerialNumber, &window, sizeof window, &address) != noErr ||
        AECreateAppleEvent(kEventClass, kSetSettings, &address, kAutoGenerateReturnID,
                           kAnyTransactionID, &event) != noErr ||
        AEPutParamPtr(&event, keyDirectObject, typePrefsRecord, &record, sizeof record) != noErr ||
        AEPutParamPtr(&event, keySettings, typeBits, &bits, sizeof bits) != noErr)
        return localized("Faults", "the change can't be sent");
    switch (AESend(&event, &reply, kAEWaitReply, kPatience)) {
    case noErr:
        return "";
    case errAEEventNotHandled: // the program shows no window yet, or no more
    case procNotFound:
        return std::nullopt;
    case errAETimeout:
        if (findApplication(kWindowSignature) != window)
            return std::nullopt; // it closed meanwhile
        return localized("Faults", "the open window doesn't answer; the change may still come");
    default:
        return localized("Faults", "the open window doesn't take the change");
    }
}

void openWindowSetup(void (*take)(const SettingSet& settings, const PrefsRecord& record)) {
    takeChange = take;
    AEInstallEventHandler(kEventClass, kSetSettings, handleSetSettings, nullptr);
}

void openWindowCleanup() {
    AERemoveEventHandler(kEventClass, kSetSettings, handleSetSettings);
    takeChange = nullptr;
}
