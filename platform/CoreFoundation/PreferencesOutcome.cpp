// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/PreferencesOutcome.h"

#include "platform/CoreFoundation/detail/PreferencesFiles.h"

#include <functional>

namespace {

/// The operation's result for this user's file. InTheWay when the name is no file name.
template <class Operation>
FileOutcome askOwnFile(const CFString* domain, Operation operation) {
    const PreferencesFiles* files = preferencesFiles(domain);
    return files ? operation(files->own) : FileOutcome{FileTrouble::InTheWay, {}};
}

} // namespace

FileOutcome preferencesLoadOutcome(const CFString* domain) {
    return askOwnFile(domain, std::mem_fn(&PreferencesDomain::loadOutcome));
}

FileOutcome preferencesSaveOutcome(const CFString* domain) {
    return askOwnFile(domain, std::mem_fn(&PreferencesDomain::saveOutcome));
}

FileOutcome preferencesSaveOutlook(const CFString* domain) {
    return askOwnFile(domain, std::mem_fn(&PreferencesDomain::saveOutlook));
}

bool preferencesAreUnsaved(const CFString* domain) {
    const PreferencesFiles* files = preferencesFiles(domain);
    return files && files->own.isUnsaved();
}

FileOutcome preferencesSaveCopy(const CFString* domain, const std::string& path) {
    return askOwnFile(domain, [&](const auto& own) { return own.saveCopy(path); });
}

std::vector<const CFString*> preferencesDomainsInUse() {
    std::vector<const CFString*> names;
    for (const auto& [key, files] : allPreferencesFiles())
        names.push_back(files.name.get());
    return names;
}
