// SPDX-License-Identifier: MIT
#include "src/store/profiles.h"

#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreFoundation/UserFiles.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMaxNameLength = 60; // bytes
constexpr std::size_t kMaxNoteSize = 4096; // bytes
constexpr char kSuffix[] = ".plist";

std::string folder() {
    return userDataFolder() + "/korvex/profiles";
}

std::string pathOf(const std::string& name) {
    return folder() + "/" + name + kSuffix;
}

std::string currentProfilePath() {
    return userStateFolder() + "/korvex/profile";
}

std::string reasonOf(int error) {
    return error ? std::strerror(error) : "";
}

/// The same with the path, for a file that the user didn't name.
std::string faultOf(const std::string& path, int error) {
    return error ? path + ": " + std::strerror(error) : "";
}

/// Notes which profile is in use. While one is renamed its next name is noted too: the renaming
/// alone decides which of both it is, wherever the program ends.
int writeNote(const std::string& name, const std::string& nextName = {}) {
    return replaceUserFile(currentProfilePath(),
                           name + "\n" + (nextName.empty() ? "" : nextName + "\n"));
}

bool isThere(const std::string& name) {
    std::error_code error;
    return profileNameFault(name).empty() && fs::exists(pathOf(name), error);
}

} // namespace

SettingSet profileSettings() {
    SettingSet settings;
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        settings[i] = !(kSettings[i].changes & (kChangeOnOff | kChangeLaunch));
    return settings;
}

std::vector<std::string> profileNames() {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(folder(), error), end; !error && entry != end;
         entry.increment(error))
        if (const fs::path& file = entry->path();
            file.extension() == kSuffix && isThere(file.stem()))
            names.push_back(file.stem());
    std::ranges::sort(names);
    return names;
}

std::string profilesFault() {
    // Whether the folder can be listed, and its files be reached.
    if (access((folder() + "/.").c_str(), R_OK | X_OK) != 0 && errno != ENOENT)
        return faultOf(folder(), errno);
    std::string note;
    const int error = readUserFile(currentProfilePath(), kMaxNoteSize, note);
    return error == ENOENT ? "" : faultOf(currentProfilePath(), error);
}

namespace {

std::string whyMissing() {
    const std::string fault = profilesFault();
    return fault.empty() ? localized("Faults", "there is no profile of that name") : fault;
}

} // namespace

std::string profileNameFault(const std::string& name) {
    if (name.empty())
        return localized("Faults", "a profile needs a name");
    if (name.size() > kMaxNameLength)
        return localized("Faults", "the name is too long");
    const auto text = createFromUTF8(name);
    if (!text || name[0] == '.' || name[0] == ' ' || name.back() == ' ' ||
        name.find('/') != std::string::npos || std::ranges::any_of(text->text(), disturbsText))
        return localized("Faults", "a name has no slash, no control character and no blank at its "
                                   "ends, and doesn't begin with a point");
    return {};
}

std::string freeProfileName(const std::string& name) {
    std::string free = name;
    for (int number = 2; isThere(free); ++number)
        free = name + " " + std::to_string(number);
    return free;
}

std::string saveProfile(const std::string& name, const PrefsRecord& record,
                        const SettingSet& settings) {
    if (const std::string fault = profileNameFault(name); !fault.empty())
        return fault;
    return reasonOf(writeSettingsFile(pathOf(name), settings, record));
}

SettingsOffer readProfile(const std::string& name, const PrefsRecord& base) {
    SettingsOffer offer{.record = base, .settings = {}, .refused = {}, .error = {}};
    if (!isThere(name)) {
        offer.error = whyMissing();
        return offer;
    }
    offer = readSettingsFile(pathOf(name), base);
    offer.settings &= profileSettings();
    PrefsRecord record = base;
    copySettings(offer.settings, offer.record, record);
    offer.record = record;
    return offer;
}

ProfileStamp profileStamp(const std::string& name) {
    struct stat file;
    if (stat(pathOf(name).c_str(), &file) != 0)
        return {};
    return {static_cast<std::int64_t>(file.st_ino), file.st_size, file.st_mtim.tv_sec,
            file.st_mtim.tv_nsec};
}

std::string renameProfile(const std::string& name, const std::string& newName) {
    if (const std::string fault = profileNameFault(newName); !fault.empty())
        return fault;
    if (!isThere(name))
        return whyMissing();
    const bool isCurrent = currentProfile() == name;
    if (const int error = isCurrent && !isThere(newName) ? writeNote(name, newName) : 0)
        return faultOf(currentProfilePath(), error);
    const int error = renameUserFile(pathOf(name), pathOf(newName));
    if (isCurrent)
        writeNote(error ? name : newName);
    return error == EEXIST ? localized("Faults", "there is a profile of that name")
                           : reasonOf(error);
}

std::string deleteProfile(const std::string& name) {
    if (!isThere(name))
        return whyMissing();
    std::error_code error;
    fs::remove(pathOf(name), error);
    return reasonOf(error.value());
}

std::string currentProfile() {
    std::string note;
    if (readUserFile(currentProfilePath(), kMaxNoteSize, note) != 0)
        return {};
    std::istringstream lines(note);
    std::string name, nextName;
    std::getline(lines, name);
    std::getline(lines, nextName);
    if (!isThere(name))
        name = isThere(nextName) ? nextName : "";
    if (!nextName.empty() && !name.empty())
        writeNote(name);
    return name;
}

std::string setCurrentProfile(const std::string& name) {
    if (name == currentProfile())
        return {};
    return faultOf(currentProfilePath(), writeNote(name));
}
