// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/PreferencesOutcome.h"

#include "platform/CoreFoundation/detail/PreferencesFiles.h"

#include <cerrno>
#include <functional>

namespace {

FileTrouble troubleOf(int error) {
    switch (error) {
    case EACCES:
    case EPERM:
        return FileTrouble::NotAllowed;
    case EROFS:
        return FileTrouble::ReadOnly;
    case ENOSPC:
    case EDQUOT:
    case EFBIG:
        return FileTrouble::Full;
    case EWOULDBLOCK:
        return FileTrouble::InUse;
    case EISDIR:
    case ENOTDIR:
    case EEXIST:
    case ELOOP:
        return FileTrouble::InTheWay;
    default:
        return FileTrouble::Failed;
    }
}

/// The operation's result for this user's file. InTheWay when the name is no file name.
template <class Operation>
PreferencesOutcome askOwnFile(const CFString* domain, Operation operation) {
    const PreferencesFiles* files = preferencesFiles(domain);
    return files ? operation(files->own) : PreferencesOutcome{FileTrouble::InTheWay, {}};
}

} // namespace

PreferencesOutcome outcomeOf(int error, const std::string& path) {
    return {error ? troubleOf(error) : FileTrouble::None, path, false, error};
}

PreferencesOutcome preferencesLoadOutcome(const CFString* domain) {
    return askOwnFile(domain, std::mem_fn(&PreferencesDomain::loadOutcome));
}

PreferencesOutcome preferencesSaveOutcome(const CFString* domain) {
    return askOwnFile(domain, std::mem_fn(&PreferencesDomain::saveOutcome));
}

PreferencesOutcome preferencesSaveOutlook(const CFString* domain) {
    return askOwnFile(domain, std::mem_fn(&PreferencesDomain::saveOutlook));
}

bool preferencesAreUnsaved(const CFString* domain) {
    const PreferencesFiles* files = preferencesFiles(domain);
    return files && files->own.isUnsaved();
}

PreferencesOutcome preferencesSaveCopy(const CFString* domain, const std::string& path) {
    return askOwnFile(domain, [&](const auto& own) { return own.saveCopy(path); });
}

std::vector<const CFString*> preferencesDomainsInUse() {
    std::vector<const CFString*> names;
    for (const auto& [key, files] : allPreferencesFiles())
        names.push_back(files.name.get());
    return names;
}
