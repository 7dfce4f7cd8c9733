// SPDX-License-Identifier: MIT
#include "src/commands/store.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"
#include "platform/CoreServices/AppleEvents.h"
#include "src/link/Daemon.h"
#include "src/link/openwindow.h"
#include "src/login/launch.h"
#include "src/record/palactions.h"
#include "src/store/recovery.h"

#include <cstring>

namespace {

std::string savingFault() {
    const FileOutcome outcome = preferencesSaveOutcome(kAgentBundleID);
    const std::string fault =
        filled(localized("Commands", "can't store the settings in %1"), {outcome.path});
    return outcome.error ? fault + ": " + std::strerror(outcome.error) : fault;
}

/// The agent's bundle. Null when there is none.
CFRef<CFURL> agentURL() {
    const CFBundle* pane = paneBundle();
    return pane ? CFBundleCopyAuxiliaryExecutableURL(pane, CFSTR(kAgentApplicationName)) : nullptr;
}

/// Does what a click in the window does, even if the setting is the same: the desktop's own tool
/// may have switched the entry off. An open window does this itself.
void updateLoginItem(const SettingSet& chosen) {
    if (const auto agent = agentURL(); agent && (changesOf(chosen) & kChangeLaunch))
        launchFollowSetting(agent.get(), prefs.launchAtLogin != 0,
                            chosen[rowOf(settingAt(offsetof(PrefsRecord, launchAtLogin)))]);
}

/// Another command may store something at the same time, and send it first. So what is sent is what
/// is stored, and what has been stored meanwhile is sent too: the agent's last record has it all.
void sendStored(ChangeMask changes) {
    PrefsRecord sent;
    prefsSetup();
    do {
        sent = prefs;
        daemonSendChanges(changes, true);
        flushSentEvents();
        CFPreferencesAppSynchronize(kAgentBundleID);
        prefsSetup();
        changes = changesOf(differences(sent, prefs));
    } while (differences(sent, prefs).any());
}

} // namespace

const CFBundle* paneBundle() {
    return CFBundleGetBundleWithIdentifier(
        CFSTR((std::string(kAgentBundleIDText) + ".PrefsPane").c_str()));
}

void nameActions() {
    palutilUseBundle([] {
        static CFRef<CFBundle> bundle;
        if (const auto agent = agentURL(); agent && !bundle)
            bundle = CFBundleCreate(agent.get());
        return bundle.get();
    });
}

PrefsRecord currentSettings() {
    prefsSetup();
    PrefsRecord record = prefs;
    recoveryLookAt(record);
    return record;
}

std::string changeSettings(const SettingSet& settings, const PrefsRecord& record) {
    if (const auto fault = sendToWindow(settings, record))
        return *fault;
    prefsSetup();
    const SettingSet changed = settings & differences(prefs, record);
    copySettings(changed, record, prefs);
    if (changed.any() && !savePrefs())
        return savingFault();
    recoveryYield(settings);
    updateLoginItem(settings);
    if (changed.none())
        return {};
    sendStored(changesOf(changed));
    return {};
}
