// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/commands/json.h"
#include "src/commands/store.h"
#include "src/openwindow.h"
#include "src/profiles.h"
#include "src/settingwords.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace {

/// Says what an offer would change and what it has that can't be taken.
void printOffer(const SettingsOffer& offer, const PrefsRecord& now) {
    const SettingSet changed = differences(now, offer.record);
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (changed[i])
            std::printf("%s\n",
                        changeText(kSettings[i], now, offer.record, kSettingBecomes).c_str());
    if (changed.none())
        std::puts(localized("Commands", "Nothing differs from the settings as they are.").c_str());
    for (const auto& [key, reason] : offer.refused)
        std::fprintf(stderr, "%s\n",
                     filled(localized("Commands", "Left out: %1: %2"), {key, reason}).c_str());
}

int take(const SettingsOffer& offer) {
    const std::string fault = changeSettings(offer.settings, offer.record);
    return fault.empty() ? int{kCommandDone} : commandFailed(fault);
}

int done(const std::string& fault) {
    return fault.empty() ? int{kCommandDone} : commandFailed(fault);
}

/// "Tired (in use, changed)"
std::string listedProfile(const std::string& name, bool isInUse, bool isChanged) {
    if (!isInUse)
        return name;
    return filled(isChanged ? localized("Commands", "%1 (in use, changed)")
                            : localized("Commands", "%1 (in use)"),
                  {name});
}

int listProfiles(const CommandLine& line) {
    const std::string current = currentProfile();
    const PrefsRecord now = currentSettings();
    std::string items;
    for (const std::string& name : profileNames()) {
        const bool isInUse = name == current;
        const bool isChanged = isInUse && differences(now, readProfile(name, now).record).any();
        if (line.json)
            items += (items.empty() ? "" : ",\n ") + JsonObject()
                                                         .add("name", name)
                                                         .add("inUse", isInUse ? "yes" : "no")
                                                         .add("changed", isChanged ? "yes" : "no")
                                                         .text();
        else
            std::puts(listedProfile(name, isInUse, isChanged).c_str());
    }
    if (line.json)
        std::printf("[%s]\n", items.c_str());
    return kCommandDone;
}

/// The open window has another look at the profiles when the change comes, so that it needs to
/// know by then.
int useProfile(const CommandLine& line) {
    const std::string& name = line.operands[1];
    const PrefsRecord now = currentSettings();
    const SettingsOffer offer = readProfile(name, now);
    if (!offer.error.empty())
        return commandFailed(offer.error);
    printOffer(offer, now);
    const std::string former = currentProfile();
    setCurrentProfile(name);
    const int result = take(offer);
    if (result != kCommandDone)
        setCurrentProfile(former);
    return result;
}

/// For a change of profiles that changes no setting.
int doneWithProfiles(const std::string& fault) {
    if (fault.empty())
        sendToWindow({}, currentSettings());
    return done(fault);
}

int saveCurrent(const CommandLine& line) {
    const std::string fault = saveProfile(line.operands[1], currentSettings());
    if (fault.empty())
        setCurrentProfile(line.operands[1]);
    return doneWithProfiles(fault);
}

constexpr ProfileVerb kVerbs[] = {
    {"list", 0, listProfiles},
    {"use", 1, useProfile},
    {"save", 1, saveCurrent},
    {"rename", 2,
     [](const CommandLine& line) {
         return doneWithProfiles(renameProfile(line.operands[1], line.operands[2]));
     }},
    {"delete", 1,
     [](const CommandLine& line) { return doneWithProfiles(deleteProfile(line.operands[1])); }},
};

} // namespace

int runExport(const CommandLine& line) {
    const std::string& path = line.operands[0];
    const PrefsRecord now = currentSettings();
    if (path == "-") {
        std::fputs(settingsDocument(SettingSet().set(), now).c_str(), stdout);
        return kCommandDone;
    }
    const int error = writeSettingsFile(std::filesystem::absolute(path), SettingSet().set(), now);
    return error ? commandFailed(path + ": " + std::strerror(error)) : int{kCommandDone};
}

int runImport(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    const SettingsOffer offer = readSettingsFile(line.operands[0], now);
    if (!offer.error.empty())
        return commandFailed(line.operands[0] + ": " + offer.error);
    printOffer(offer, now);
    if (line.yes)
        return take(offer);
    std::puts(localized("Commands", "Nothing was changed. With --yes it is.").c_str());
    return kCommandDone;
}

std::span<const ProfileVerb> profileVerbs() {
    return kVerbs;
}

int runProfile(const CommandLine& line) {
    for (const ProfileVerb& verb : kVerbs)
        if (line.operands[0] == verb.name && line.operands.size() == verb.names + 1)
            return verb.run(line);
    commandFailed(localized("Commands", "profile list, use NAME, save NAME, rename NAME NEW or "
                                        "delete NAME"));
    return kCommandMisused;
}
