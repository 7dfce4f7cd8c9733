// SPDX-License-Identifier: MIT
#include "src/commands/command.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/commands/json.h"
#include "src/commands/store.h"
#include "src/link/openwindow.h"
#include "src/record/settingwords.h"
#include "src/store/profiles.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>

namespace {

/// Says what is different, or with `none` that nothing is.
void printChanges(const CommandLine& line, const PrefsRecord& before, const PrefsRecord& after,
                  const std::string& none) {
    const SettingSet changed = differences(before, after);
    if (line.json)
        return printChangesJson(before, after);
    if (changed.none())
        std::puts(none.c_str());
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (changed[i])
            std::puts(changeText(kSettings[i], before, after, kSettingBecomes).c_str());
}

void printRefused(const SettingsOffer& offer) {
    for (const auto& [key, reason] : offer.refused)
        std::fprintf(stderr, "%s\n",
                     filled(localized("Commands", "Left out: %1: %2"), {key, reason}).c_str());
}

/// Says what an offer would change and what it has that can't be taken.
void printOffer(const CommandLine& line, const SettingsOffer& offer, const PrefsRecord& now) {
    printChanges(line, now, offer.record,
                 localized("Commands", "Nothing differs from the settings as they are."));
    printRefused(offer);
}

int done(const std::string& fault) {
    return fault.empty() ? int{kCommandDone} : commandFailed(fault);
}

/// What was to be done with that profile didn't work.
int failed(const std::string& profile, const std::string& fault) {
    return commandFailed(profile + ": " + fault);
}

int take(const SettingsOffer& offer) {
    return done(changeSettings(offer.settings, offer.record));
}

/// Everything is done. With a fault, the name of the profile in use couldn't be stored.
int inUse(const std::string& fault) {
    return done(
        fault.empty()
            ? ""
            : filled(localized("Commands", "which profile is in use can't be kept: %1"), {fault}));
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
    JsonList list;
    for (const std::string& name : profileNames()) {
        const bool isInUse = name == current;
        const bool isChanged = isInUse && differences(now, readProfile(name, now).record).any();
        if (line.json)
            list.add(JsonObject()
                         .add("name", name)
                         .addFlag("inUse", isInUse)
                         .addFlag("changed", isChanged));
        else
            std::puts(listedProfile(name, isInUse, isChanged).c_str());
    }
    if (line.json)
        std::puts(list.text().c_str());
    return done(profilesFault());
}

/// The open window reads the profiles again when the change comes. The name must be stored by then.
int useProfile(const CommandLine& line) {
    const std::string& name = line.operands[1];
    const PrefsRecord now = currentSettings();
    const SettingsOffer offer = readProfile(name, now);
    if (!offer.error.empty())
        return failed(name, offer.error);
    printOffer(line, offer, now);
    const std::string former = currentProfile();
    const std::string fault = setCurrentProfile(name);
    const int result = take(offer);
    if (result != kCommandDone && fault.empty())
        setCurrentProfile(former);
    return result == kCommandDone ? inUse(fault) : result;
}

/// The settings as they would be with that profile. None if it can't be read; the reason is
/// printed.
std::optional<PrefsRecord> settingsWith(const std::string& profile, const PrefsRecord& now) {
    const SettingsOffer offer = readProfile(profile, now);
    printRefused(offer);
    if (offer.error.empty())
        return offer.record;
    failed(profile, offer.error);
    return std::nullopt;
}

/// One with another, or the settings as they are with one.
int compareProfiles(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    const bool two = line.operands.size() == 3;
    const auto before = two ? settingsWith(line.operands[1], now) : now;
    const auto after = before ? settingsWith(line.operands.back(), now) : std::nullopt;
    if (!after)
        return kCommandFailed;
    printChanges(line, *before, *after, localized("Commands", "Nothing differs."));
    return kCommandDone;
}

/// After a change of profiles that changed no setting: an open window shows it.
int changedProfile(const std::string& profile, const std::string& fault) {
    if (!fault.empty())
        return failed(profile, fault);
    sendToWindow({}, currentSettings());
    return kCommandDone;
}

int saveCurrent(const CommandLine& line) {
    const std::string& name = line.operands[1];
    if (const std::string fault = saveProfile(name, currentSettings()); !fault.empty())
        return failed(name, fault);
    const std::string notKept = setCurrentProfile(name);
    changedProfile(name, {});
    return inUse(notKept);
}

int renameOne(const CommandLine& line) {
    const std::string &name = line.operands[1], &newName = line.operands[2];
    return changedProfile(name, renameProfile(name, newName));
}

int deleteOne(const CommandLine& line) {
    const std::string& name = line.operands[1];
    return changedProfile(name, deleteProfile(name));
}

constexpr ProfileVerb kVerbs[] = {
    {"list", 0, 0, listProfiles}, {"use", 1, 1, useProfile},   {"compare", 1, 2, compareProfiles},
    {"save", 1, 1, saveCurrent},  {"rename", 2, 2, renameOne}, {"delete", 1, 1, deleteOne},
};

/// Standard input, as far as a file of settings may be long.
std::string readInput() {
    std::string text(kPropertyListMaxSize + 1, '\0');
    text.resize(std::fread(text.data(), 1, text.size(), stdin));
    return text;
}

} // namespace

void printChangesJson(const PrefsRecord& before, const PrefsRecord& after) {
    const SettingSet changed = differences(before, after);
    JsonList list;
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (changed[i])
            list.add(JsonObject()
                         .add("key", kSettings[i].key)
                         .add("from", settingText(kSettings[i], before))
                         .add("to", settingText(kSettings[i], after)));
    std::puts(list.text().c_str());
}

int runExport(const CommandLine& line) {
    const std::string& path = line.operands[0];
    const PrefsRecord now = currentSettings();
    if (path == "-" && line.json) {
        commandFailed(localized("Commands", "--json goes with a file, not with -"));
        return kCommandMisused;
    }
    if (path == "-") {
        std::fputs(settingsDocument(SettingSet().set(), now).c_str(), stdout);
        return kCommandDone;
    }
    std::error_code error;
    const std::filesystem::path file(path);
    const auto folder = std::filesystem::canonical("." / file.parent_path(), error);
    const int fault = error ? error.value() // a mistyped folder isn't made
                            : writeSettingsFile(folder / file.filename(), SettingSet().set(), now);
    if (fault)
        return commandFailed(path + ": " + std::strerror(fault));
    if (line.json)
        std::puts(JsonObject().add("file", (folder / file.filename()).string()).text().c_str());
    return kCommandDone;
}

int runImport(const CommandLine& line) {
    const PrefsRecord now = currentSettings();
    const SettingsOffer offer = line.operands[0] == "-" ? readSettings(readInput(), now)
                                                        : readSettingsFile(line.operands[0], now);
    if (!offer.error.empty())
        return commandFailed(line.operands[0] + ": " + offer.error);
    printOffer(line, offer, now);
    if (line.yes)
        return take(offer);
    if (!line.json && differences(now, offer.record).any())
        std::puts(localized("Commands", "Nothing was changed. With --yes it is.").c_str());
    return kCommandDone;
}

std::span<const ProfileVerb> profileVerbs() {
    return kVerbs;
}

int runProfile(const CommandLine& line) {
    for (const ProfileVerb& verb : kVerbs)
        if (line.operands[0] == verb.name && line.operands.size() > verb.fewest &&
            line.operands.size() <= verb.most + 1)
            return verb.run(line);
    commandFailed(localized("Commands", "profile list, use NAME, compare NAME [OTHER], save NAME, "
                                        "rename NAME NEW or delete NAME"));
    return kCommandMisused;
}
