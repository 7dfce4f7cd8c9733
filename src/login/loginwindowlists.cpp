// SPDX-License-Identifier: MIT
#include "src/login/loginwindowlists.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/login/LoginItemAPI.h"

#include <cstring>

namespace {

const CFString* userScope(bool allUsers) {
    return allUsers ? kCFPreferencesAnyUser : kCFPreferencesCurrentUser;
}

} // namespace

CFIndex loginItemAPIIndexOfURL(const CFURL* url, bool allUsers) {
    char name[250] = "";
    const auto component = CFURLCopyLastPathComponent(url);
    if (!component ||
        !CFStringGetCString(component.get(), name, sizeof name, CFStringGetSystemEncoding()))
        *name = '\0';
    const CFString* user = userScope(allUsers);
    for (CFIndex i = 0; i < GetCountOfLoginItems(user); ++i) {
        const char* itemName = ReturnLoginItemPropertyAtIndex(user, kLoginItemExecutableName, i);
        if (itemName && std::strcmp(itemName, name) == 0)
            return i;
    }
    return -1;
}

bool setInLoginWindowList(const CFURL* url, bool autoLaunch, bool allUsers) {
    const CFString* user = userScope(allUsers);
    for (CFIndex i; (i = loginItemAPIIndexOfURL(url, allUsers)) >= 0;)
        if (!RemoveLoginItemAtIndex(user, i))
            return false;
    if (!autoLaunch)
        return true;
    char path[1024];
    if (!CFURLGetFileSystemRepresentation(url, path, sizeof path))
        return false;
    AddLoginItemWithPropertiesToUser(user, path, false);
    return true;
}
