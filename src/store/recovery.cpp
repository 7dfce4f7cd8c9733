// SPDX-License-Identifier: MIT
#include "src/store/recovery.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"
#include "platform/CoreFoundation/UserFiles.h"
#include "platform/CoreServices/StateFile.h"
#include "src/files/proputil.h"
#include "src/record/settingcheck.h"
#include "src/store/prefs.h"
#include "src/store/settingsfile.h"

#include <filesystem>
#include <utility>

namespace {

constexpr char kFileName[] = "unsaved";

/// The key of the values before, in a dictionary of their own.
const CFString* loadedKey() {
    return CFSTR("loaded");
}

CFRef<const CFType> readLeftover(const std::string& path) {
    const auto url = CFURLCreateFromFileSystemRepresentation(path.c_str(), false);
    return propUtilReadFile(url.get(), CFDictionaryGetTypeID());
}

/// Takes the settings that a dictionary has. A list is read as the store reads it: beside the entry
/// that was changed there may be one that no import would take.
void take(const CFDictionary* settings, const SettingSet& except, PrefsRecord& record) {
    for (std::size_t i = 0; settings && i < kSettings.size(); ++i) {
        const Setting& setting = kSettings[i];
        const CFType* value = CFDictionaryGetValue(settings, CFSTR(setting.key));
        if (!value || except[i])
            continue;
        if (setting.isList())
            setting.notation->read(value, setting.in(record));
        else
            setFromValue(setting, value, record);
    }
}

/// Whether the settings' own file is younger.
bool isStoredAfter(const std::string& leftover) {
    namespace fs = std::filesystem;
    std::error_code noStore, noLeftover;
    const auto stored = fs::last_write_time(preferencesLoadOutcome(kAgentBundleID).path, noStore);
    const auto left = fs::last_write_time(leftover, noLeftover);
    return !noStore && !noLeftover && stored > left;
}

} // namespace

void recoveryKeep(const PrefsRecord& record, const SettingSet& changed, const PrefsRecord& loaded) {
    const auto document = settingsDictionary(changed, record);
    CFDictionarySetValue(document.get(), loadedKey(), settingsDictionary(changed, loaded).get());
    keepStateFile(kFileName, propertyListToXML(document.get()));
}

void recoveryForget() {
    removeStateFile();
}

SettingSet recoveryTakeOver(PrefsRecord& record) {
    const PrefsRecord stored = record;
    for (const std::string& path : findStateFiles(kFileName, StateFileOwner::Gone)) {
        const auto list = readLeftover(path);
        const auto* leftover = dynamicCFCast<CFDictionary>(list.get());
        if (!leftover)
            continue;
        PrefsRecord loaded = stored;
        take(dynamicCFCast<CFDictionary>(CFDictionaryGetValue(leftover, loadedKey())), {}, loaded);
        take(leftover, isStoredAfter(path) ? differences(loaded, stored) : SettingSet(), record);
        releaseLeftStateFile(path);
    }
    return differences(stored, record);
}

void recoveryYield(const SettingSet& settings) {
    for (const std::string& path : findStateFiles(kFileName, StateFileOwner::Gone)) {
        const auto list = readLeftover(path);
        const auto* leftover = dynamicCFCast<CFDictionary>(list.get());
        if (!leftover)
            continue;
        CFDictionary::Items items = leftover->items();
        for (std::size_t i = 0; i < kSettings.size(); ++i)
            if (settings[i])
                items.erase(CFSTR(kSettings[i].key)->text());
        if (items.size() == leftover->items().size())
            continue;
        // The moment counts for the rest.
        std::error_code error;
        const auto time = std::filesystem::last_write_time(path, error);
        const auto rest = CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
        if (replaceUserFile(path, propertyListToXML(rest.get())) == 0 && !error)
            std::filesystem::last_write_time(path, time, error);
    }
}

void recoveryLookAt(PrefsRecord& record) {
    for (const std::string& path : findStateFiles(kFileName, StateFileOwner::Running)) {
        const auto list = readLeftover(path);
        take(dynamicCFCast<CFDictionary>(list.get()), {}, record);
    }
}
