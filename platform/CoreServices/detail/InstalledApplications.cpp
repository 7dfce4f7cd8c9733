// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/InstalledApplications.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/FileReading.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"
#include "platform/CoreServices/detail/DesktopEntry.h"
#include "platform/CoreServices/detail/FileCache.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// A bundle's Info.plist.
struct BundleInfo {
    OSType signature = 0;
    std::string identifier;
    std::string iconFile;
};

// These are asked for whenever a button is drawn.
FileCache<std::vector<std::string>> bundleNames; ///< by folder
FileCache<BundleInfo> bundleInfos;               ///< by the path of Info.plist
FileCache<DesktopEntry> desktopEntries;          ///< by path

/// The identifier that was last found with each creator code.
std::map<OSType, std::string>& identifiersOfCreators() {
    static auto& identifiers = *new std::map<OSType, std::string>;
    return identifiers;
}

std::vector<std::string> readBundleNames(const std::string& folder) {
    std::vector<std::string> names;
    std::error_code error;
    fs::directory_iterator end;
    for (fs::directory_iterator at(folder, error); !error && at != end; at.increment(error))
        if (at->path().extension() == ".app")
            names.push_back(at->path().filename().string());
    std::ranges::sort(names);
    return names;
}

OSType codeOfText(const CFString* text) {
    char bytes[5];
    if (!text || text->text().size() != 4 ||
        !CFStringGetCString(text, bytes, sizeof bytes, kCFStringEncodingMacRoman))
        return 0;
    OSType code = 0;
    for (int i = 0; i < 4; ++i)
        code = code << 8 | static_cast<UInt8>(bytes[i]);
    return code;
}

BundleInfo readBundleInfo(const std::string& path) {
    const FileContents file = readRegularFile(path, kPropertyListMaxSize);
    const auto root = file.data ? CFPropertyListCreateFromXMLData(file.data.get()) : nullptr;
    const auto* info = dynamicCFCast<CFDictionary>(root.get());
    if (!info)
        return {};
    const auto text = [&](const char* key) {
        return dynamicCFCast<CFString>(CFDictionaryGetValue(info, CFSTR(key)));
    };
    const auto utf8 = [](const CFString* string) {
        return string ? toUTF8(string) : std::string();
    };
    return {codeOfText(text("CFBundleSignature")), utf8(text("CFBundleIdentifier")),
            utf8(text("CFBundleIconFile"))};
}

/// The first fitting bundle in the folder.
std::optional<InstalledApplication> findBundle(const std::string& folder, OSType creator,
                                               const std::string& identifier,
                                               const std::string& fileName) {
    for (const std::string& name : bundleNames.get(folder, readBundleNames)) {
        const std::string path = folder + '/' + name;
        const BundleInfo& info = bundleInfos.get(path + "/Contents/Info.plist", readBundleInfo);
        if ((creator == 0 || info.signature == creator) &&
            (identifier.empty() || info.identifier == identifier) &&
            (fileName.empty() || name == fileName))
            return InstalledApplication{path, true, info.iconFile};
    }
    return std::nullopt;
}

std::optional<InstalledApplication> search(OSType creator, const std::string& identifier,
                                           const std::string& fileName) {
    const std::string entryName = identifier + ".desktop";
    bool wantsEntry = !identifier.empty() && identifier.find('/') == identifier.npos &&
                      (fileName.empty() || fileName == entryName);
    for (const std::string& data : xdgDataFolders()) {
        const std::string folder = data + "/applications";
        if (auto bundle = findBundle(folder, creator, identifier, fileName))
            return bundle;
        if (!wantsEntry)
            continue;
        const std::string path = folder + '/' + entryName;
        const DesktopEntry& entry = desktopEntries.get(path, readDesktopEntry);
        if (isInstalledApplication(entry))
            return InstalledApplication{path, false, desktopEntryValue(entry, "Icon")};
        wantsEntry = entry.empty(); // a hidden entry hides those in later folders
    }
    return std::nullopt;
}

} // namespace

std::optional<InstalledApplication> findInstalledApplication(OSType creator,
                                                             const std::string& identifier,
                                                             const std::string& fileName) {
    if (creator == 0 && identifier.empty() && fileName.empty())
        return std::nullopt;
    auto found = search(creator, identifier, fileName);
    if (found && creator != 0 && !identifier.empty())
        identifiersOfCreators()[creator] = identifier;
    return found;
}

std::optional<InstalledApplication> findApplicationOfCreator(OSType creator) {
    const auto known = identifiersOfCreators().find(creator);
    return findInstalledApplication(
        creator, known == identifiersOfCreators().end() ? std::string() : known->second, {});
}
