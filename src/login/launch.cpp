// SPDX-License-Identifier: MIT
#include "src/login/launch.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/Gestalt.h"
#include "platform/CoreServices/SharedFileList.h"
#include "platform/CoreServices/UserNames.h"
#include "src/login/loginwindowlists.h"
#include "src/login/sharedlists.h"

#include <algorithm>

namespace {

constexpr SInt32 kSharedListMinSystemVersion = 0x1070;

/// Whether the system has shared lists. It is asked for its version until it has answered.
bool hasSharedLists() {
    static SInt32 version = 0;
    if (version == 0 && Gestalt(gestaltSystemVersion, &version) != noErr)
        version = 0;
    return version >= kSharedListMinSystemVersion;
}

bool setURLIsAutoLaunched(const CFURL* url, bool autoLaunch, bool allUsers) {
    return hasSharedLists() ? setInSharedList(url, autoLaunch, allUsers)
                            : setInLoginWindowList(url, autoLaunch, allUsers);
}

bool urlIsAutoLaunched(const CFURL* url, bool allUsers) {
    return hasSharedLists() ? sharedListHolds(url, allUsers)
                            : loginItemAPIIndexOfURL(url, allUsers) >= 0;
}

/// True also when the user's name or groups can't be found.
bool currentUserIsAdmin() {
    const auto userName = CSCopyUserName(true);
    char name[200];
    if (!userName ||
        !CFStringGetCString(userName.get(), name, sizeof name, CFStringGetSystemEncoding()))
        return true;
    int groups[200];
    int count = std::size(groups);
    if (userGroups(name, 0, groups, &count) < 0)
        return true;
    return std::find(groups, groups + count, kAdminGroup) != groups + count;
}

LaunchUIState getCurrentUIStateForURL(const CFURL* url, bool showAllUsers) {
    const bool forAllUsers = urlIsAutoLaunched(url, true);
    if (!showAllUsers && forAllUsers)
        return kLaunchThisUserChecked;
    LaunchUIState state = kLaunchThisUserEnabled;
    if (urlIsAutoLaunched(url, false))
        state |= kLaunchThisUserChecked;
    if (!showAllUsers)
        return state;
    if (forAllUsers)
        state |= kLaunchAllUsersChecked;
    if (currentUserIsAdmin())
        state |= kLaunchAllUsersEnabled;
    return state | kLaunchAllUsersShown;
}

} // namespace

CFRef<const CFURL> getRetainedAppURL(const CFURL* appURL) {
    if (appURL)
        return CFRef<const CFURL>::retain(appURL);
    const CFBundle* own = CFBundleGetMainBundle();
    return own ? CFBundleCopyBundleURL(own) : nullptr;
}

bool launchSetAppIsAutoLaunched(const CFURL* appURL, bool autoLaunch, bool allUsers) {
    const auto url = getRetainedAppURL(appURL);
    return url && setURLIsAutoLaunched(url.get(), autoLaunch, allUsers);
}

LaunchUIState launchGetCurrentUIStateForApp(const CFURL* appURL, bool showAllUsers) {
    const auto url = getRetainedAppURL(appURL);
    return url ? getCurrentUIStateForURL(url.get(), showAllUsers) : 0;
}

bool launchAppIsAutoLaunched(const CFURL* appURL) {
    const auto url = getRetainedAppURL(appURL);
    return url && (urlIsAutoLaunched(url.get(), false) || urlIsAutoLaunched(url.get(), true));
}

void launchForgetSwitchedOff(const CFURL* appURL) {
    if (const auto url = getRetainedAppURL(appURL); url && hasSharedLists())
        forgetSwitchedOffLoginItem(url.get());
}

void launchFollowSetting(const CFURL* appURL, bool autoLaunch, bool isChosen) {
    if (autoLaunch && isChosen)
        launchForgetSwitchedOff(appURL);
    launchSetAppIsAutoLaunched(appURL, false, true);
    launchSetAppIsAutoLaunched(appURL, autoLaunch, false);
}
