// SPDX-License-Identifier: MIT
#include "src/store/settingsfile.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreFoundation/UserFiles.h"
#include "src/files/proputil.h"
#include "src/record/settingcheck.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <utility>

namespace {

constexpr std::size_t kMostKey = 60; ///< characters of an unknown key

/// A key of somebody else's, as it can be shown.
std::string shownKey(std::u16string key) {
    const bool isCut = key.size() > kMostKey;
    key.resize(std::min(key.size(), kMostKey));
    std::ranges::replace_if(key, disturbsText, u'\uFFFD');
    return toUTF8(CFRef<CFString>::adopt(new CFString(isCut ? key + u'…' : key)).get());
}

/// Takes one value. Returns the reason if it can't, else an empty text.
std::string take(const Setting* setting, const CFType* value, SettingsOffer& offer) {
    if (!setting)
        return localized("Faults", "no setting of this version");
    std::string fault = setFromValue(*setting, value, offer.record);
    if (fault.empty())
        offer.settings[static_cast<std::size_t>(setting - kSettings.data())] = true;
    return fault;
}

/// Why a file can't be read as a file of settings.
std::string fileFault(const std::string& path) {
    std::error_code error;
    const bool isFile = std::filesystem::is_regular_file(path, error);
    if (error)
        return error.message();
    if (isFile && std::filesystem::file_size(path, error) > kPropertyListMaxSize)
        return localized("Faults", "larger than a file of settings can be");
    return !isFile || std::ifstream(path) ? localized("Faults", "damaged, or no file of settings")
                                          : std::strerror(errno);
}

} // namespace

bool disturbsText(char16_t character) {
    constexpr std::pair<char16_t, char16_t> kDisturbing[] = {
        {0, 0x1F}, {0x7F, 0x9F}, {0x200B, 0x200B}, {0x2028, 0x202E}, {0x2066, 0x2069}};
    return std::ranges::any_of(kDisturbing, [character](const auto& range) {
        return character >= range.first && character <= range.second;
    });
}

CFRef<CFMutableDictionary> settingsDictionary(const SettingSet& settings,
                                              const PrefsRecord& record) {
    const auto dictionary = CFDictionaryCreateMutable();
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (settings[i])
            if (const auto text = kSettings[i].notation->write(kSettings[i].in(record)))
                CFDictionarySetValue(dictionary.get(), CFSTR(kSettings[i].key), text.get());
    return dictionary;
}

std::string settingsDocument(const SettingSet& settings, const PrefsRecord& record) {
    return propertyListToXML(settingsDictionary(settings, record).get());
}

namespace {

/// What a list offers, which is null if the text was none.
SettingsOffer offerOf(const CFType* list, const PrefsRecord& base) {
    SettingsOffer offer{.record = base, .settings = {}, .refused = {}, .error = {}};
    const auto* dictionary = dynamicCFCast<CFDictionary>(list);
    if (!dictionary) {
        offer.error = localized("Faults", "damaged, or no file of settings");
        return offer;
    }
    for (const auto& [key, value] : dictionary->items()) {
        const std::string name = toUTF8(CFRef<CFString>::adopt(new CFString(key)).get());
        const Setting* setting = settingOfKey(name);
        if (const std::string reason = take(setting, value.get(), offer); !reason.empty())
            offer.refused.push_back({setting ? name : shownKey(key), reason});
    }
    return offer;
}

} // namespace

SettingsOffer readSettingsFile(const std::string& path, const PrefsRecord& base) {
    const auto url = CFURLCreateFromFileSystemRepresentation(path.c_str(), false);
    const auto list = propUtilReadFile(url.get(), CFDictionaryGetTypeID());
    SettingsOffer offer = offerOf(list.get(), base);
    if (!list)
        offer.error = fileFault(path);
    return offer;
}

SettingsOffer readSettings(const std::string& document, const PrefsRecord& base) {
    const auto data = CFDataCreate(reinterpret_cast<const UInt8*>(document.data()),
                                   static_cast<CFIndex>(document.size()));
    return offerOf(CFPropertyListCreateFromXMLData(data.get()).get(), base);
}

int writeSettingsFile(const std::string& path, const SettingSet& settings,
                      const PrefsRecord& record) {
    return replaceUserFile(path, settingsDocument(settings, record));
}
