// SPDX-License-Identifier: MIT
#include "src/settingsfile.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreFoundation/UserFiles.h"
#include "src/proputil.h"
#include "src/settingcheck.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

namespace {

/// Takes one value. Returns the reason if it can't, else an empty text.
std::string take(const std::string& key, const CFType* value, SettingsOffer& offer) {
    const Setting* setting = settingOfKey(key);
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
    const auto size = std::filesystem::file_size(path, error);
    if (error)
        return error.message();
    if (size > kPropertyListMaxSize)
        return localized("Faults", "larger than a file of settings can be");
    return std::ifstream(path) ? localized("Faults", "damaged, or no file of settings")
                               : std::strerror(errno);
}

} // namespace

std::string settingsDocument(const SettingSet& settings, const PrefsRecord& record) {
    const auto dictionary = CFDictionaryCreateMutable();
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        if (settings[i])
            if (const auto text = kSettings[i].notation->write(kSettings[i].in(record)))
                CFDictionarySetValue(dictionary.get(), CFSTR(kSettings[i].key), text.get());
    return propertyListToXML(dictionary.get());
}

SettingsOffer readSettingsFile(const std::string& path, const PrefsRecord& base) {
    SettingsOffer offer{.record = base, .settings = {}, .refused = {}, .error = {}};
    const auto url = CFURLCreateFromFileSystemRepresentation(path.c_str(), false);
    const auto list = propUtilReadFile(url.get(), CFDictionaryGetTypeID());
    const auto* dictionary = dynamicCFCast<CFDictionary>(list.get());
    if (!dictionary) {
        offer.error = fileFault(path);
        return offer;
    }
    for (const auto& [key, value] : dictionary->items()) {
        const std::string name = toUTF8(CFRef<CFString>::adopt(new CFString(key)).get());
        if (const std::string reason = take(name, value.get(), offer); !reason.empty())
            offer.refused.push_back({name, reason});
    }
    return offer;
}

int writeSettingsFile(const std::string& path, const SettingSet& settings,
                      const PrefsRecord& record) {
    return replaceUserFile(path, settingsDocument(settings, record));
}
