// SPDX-License-Identifier: MIT
#include "platform/CoreServices/UserNames.h"

#include <algorithm>
#include <grp.h>
#include <pwd.h>
#include <string_view>
#include <unistd.h>
#include <vector>

namespace {

/// The group's number on the platform.
int platformGroup(gid_t id) {
    constexpr gid_t kRoot = 0;
    const group* found = getgrgid(id);
    const std::string_view name = found ? found->gr_name : "";
    if (id == kRoot || name == "sudo" || name == "wheel" || name == "admin")
        return kAdminGroup;
    return id == static_cast<gid_t>(kAdminGroup) ? -1 : static_cast<int>(id);
}

} // namespace

CFRef<CFString> CSCopyUserName(bool) {
    const passwd* user = getpwuid(getuid());
    return user ? createFromUTF8(user->pw_name) : nullptr;
}

int userGroups(const char* name, int baseGroup, int* groups, int* count) {
    const passwd* user = getpwnam(name);
    int found = *count;
    std::vector<gid_t> own(static_cast<std::size_t>(found));
    if (!user || ::getgrouplist(name, user->pw_gid, own.data(), &found) < 0 || found >= *count)
        return -1;
    groups[0] = baseGroup;
    std::transform(own.begin(), own.begin() + found, groups + 1, platformGroup);
    *count = found + 1;
    return found;
}
