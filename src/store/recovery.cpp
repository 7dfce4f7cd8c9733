// SPDX-License-Identifier: MIT
#include "src/store/recovery.h"

#include "platform/CoreServices/StateFile.h"
#include "src/store/settingsfile.h"

namespace {

constexpr char kFileName[] = "unsaved";

} // namespace

void recoveryKeep(const PrefsRecord& record, const SettingSet& changed) {
    keepStateFile(kFileName, settingsDocument(changed, record));
}

void recoveryForget() {
    removeStateFile();
}

SettingSet recoveryTakeOver(PrefsRecord& record) {
    const PrefsRecord before = record;
    for (const std::string& path : findStateFiles(kFileName, StateFileOwner::Gone)) {
        const SettingsOffer offer = readSettingsFile(path, record);
        copySettings(offer.settings, offer.record, record);
        if (offer.error.empty())
            releaseLeftStateFile(path);
    }
    return differences(before, record);
}

void recoveryLookAt(PrefsRecord& record) {
    for (const std::string& path : findStateFiles(kFileName, StateFileOwner::Running)) {
        const SettingsOffer offer = readSettingsFile(path, record);
        copySettings(offer.settings, offer.record, record);
    }
}
