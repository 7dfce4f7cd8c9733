// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/PreferencesFiles.h"

#include "platform/CoreFoundation/detail/TextEncoding.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"

namespace {

using Readers = PreferencesDomain::Readers;
using FilesByName = std::map<std::u16string, PreferencesFiles>;

FilesByName& filesByName() {
    static auto& files = *new FilesByName; // exit handlers save as well
    return files;
}

std::string pathIn(const std::string& folder, const std::string& fileName) {
    return folder + "/Preferences/" + fileName + ".plist";
}

} // namespace

PreferencesFiles::PreferencesFiles(const std::string& fileName)
    : name(createFromUTF8(fileName)), own(pathIn(xdgConfigHome(), fileName), Readers::ThisUser) {
    for (const std::string& folder : xdgSystemConfigFolders())
        everyones.emplace_back(pathIn(folder, fileName), Readers::Everyone);
}

PreferencesFiles* preferencesFiles(const CFString* domain) {
    FilesByName& files = filesByName();
    const auto known = files.find(domain->text());
    if (known != files.end())
        return &known->second;
    const auto fileName = encodeText(domain->text(), kCFStringEncodingUTF8);
    if (!fileName || fileName->empty() ||
        fileName->find_first_of(std::string_view("/\0", 2)) != std::string::npos)
        return nullptr;
    return &files.try_emplace(domain->text(), *fileName).first->second;
}

const std::map<std::u16string, PreferencesFiles>& allPreferencesFiles() {
    return filesByName();
}
