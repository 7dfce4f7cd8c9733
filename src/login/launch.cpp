#include "src/login/launch.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreServices/Gestalt.h"
#include "platform/CoreServices/SharedFileList.h"
#include "platform/CoreServices/UserNames.h"
#include "src/login/LoginItemAPI.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr SInt32 kSharedListMinSystemVersion = 0x1070;

/// Whether the system has shared lists; asked once it has told its version.
bool hasSharedLists() {
    static SInt32 version = 0;
    if (version == 0 && Gestalt(gestaltSystemVersion, &version) != noErr)
        version = 0;
    return version >= kSharedListMinSystemVersion;
}

// Shared lists

/// The right to change a shared list, held for one change.
class ListAuthorization {
public:
    ListAuthorization() {
        if (AuthorizationCreate(nullptr, nullptr, kAuthorizationFlagDefaults, &authorization_) !=
            errAuthorizationSuccess)
            authorization_ = nullptr;
    }

    ~ListAuthorization() {
        if (authorization_)
            AuthorizationFree(authorization_, kAuthorizationFlagDefaults);
    }

    ListAuthorization(const ListAuthorization&) = delete;
    ListAuthorization& operator=(const ListAuthorization&) = delete;

    AuthorizationRef get() const { return authorization_; }

    /// May ask the user.
    bool requestRight() const {
        AuthorizationItem right{"system.global-login-items.", 0, nullptr, 0};
        const AuthorizationRights rights{1, &right};
        constexpr AuthorizationFlags kFlags =
            kAuthorizationFlagInteractionAllowed | kAuthorizationFlagExtendRights;
        return authorization_ && AuthorizationCopyRights(authorization_, &rights, nullptr, kFlags,
                                                         nullptr) == errAuthorizationSuccess;
    }

private:
    AuthorizationRef authorization_ = nullptr;
};

CFRef<LSSharedFileList> createSharedList(bool allUsers) {
    return LSSharedFileListCreate(allUsers ? kLSSharedFileListGlobalLoginItems
                                           : kLSSharedFileListSessionLoginItems);
}

const LSSharedFileListItem* itemAt(const CFArray* snapshot, CFIndex index) {
    return dynamicCFCast<LSSharedFileListItem>(CFArrayGetValueAtIndex(snapshot, index));
}

/// The path of the item's application; null when it doesn't resolve.
CFRef<CFString> copyItemPath(const LSSharedFileListItem* item) {
    constexpr UInt32 kFlags =
        kLSSharedFileListNoUserInteraction | kLSSharedFileListDoNotMountVolumes;
    CFRef<CFURL> url;
    return LSSharedFileListItemResolve(item, kFlags, &url, nullptr) == noErr && url
               ? CFURLCopyFileSystemPath(url.get())
               : nullptr;
}

bool matches(const LSSharedFileListItem* item, const CFString* path) {
    const auto itemPath = copyItemPath(item);
    return itemPath &&
           CFStringCompare(itemPath.get(), path, kCFCompareCaseInsensitive) == kCFCompareEqualTo;
}

CFIndex countMatches(const CFArray* snapshot, const CFString* path) {
    CFIndex count = 0;
    for (CFIndex i = 0; i < CFArrayGetCount(snapshot); ++i)
        count += matches(itemAt(snapshot, i), path);
    return count;
}

/// Whether removing the application and adding it would lead to the same list.
bool isOnceAtEnd(const CFArray* snapshot, const CFString* path) {
    const CFIndex count = CFArrayGetCount(snapshot);
    return countMatches(snapshot, path) == 1 &&
           CFEqual(copyItemPath(itemAt(snapshot, count - 1)).get(), path);
}

bool sharedListHolds(const CFURL* url, bool allUsers) {
    const auto list = createSharedList(allUsers);
    const auto snapshot = list ? LSSharedFileListCopySnapshot(list.get(), nullptr) : nullptr;
    const auto path = CFURLCopyFileSystemPath(url);
    return snapshot && path && countMatches(snapshot.get(), path.get()) > 0;
}

/// Tries to remove every item of the application; false when any of them stays.
bool removeFromSharedList(LSSharedFileList* list, const CFArray* snapshot, const CFString* path) {
    bool removed = true;
    for (CFIndex i = 0; i < CFArrayGetCount(snapshot); ++i) {
        const LSSharedFileListItem* item = itemAt(snapshot, i);
        if (matches(item, path))
            removed &= LSSharedFileListItemRemove(list, item) == noErr;
    }
    return removed;
}

bool addToSharedList(const CFURL* url, bool allUsers) {
    const ListAuthorization authorization;
    const auto list = authorization.requestRight() ? createSharedList(allUsers) : nullptr;
    if (!list)
        return false;
    LSSharedFileListSetAuthorization(list.get(), authorization.get());
    return LSSharedFileListInsertItemURL(list.get(), kLSSharedFileListItemLast, nullptr, nullptr,
                                         url, nullptr, nullptr)
               .get() != nullptr;
}

bool setInSharedList(const CFURL* url, bool autoLaunch, bool allUsers) {
    {
        const ListAuthorization authorization;
        const auto list = authorization.requestRight() ? createSharedList(allUsers) : nullptr;
        if (!list)
            return false;
        LSSharedFileListSetAuthorization(list.get(), authorization.get());
        const auto snapshot = LSSharedFileListCopySnapshot(list.get(), nullptr);
        const auto path = CFURLCopyFileSystemPath(url);
        if (!snapshot || !path)
            return false;
        if (autoLaunch && isOnceAtEnd(snapshot.get(), path.get()))
            return true;
        if (!removeFromSharedList(list.get(), snapshot.get(), path.get()))
            return false;
    }
    return !autoLaunch || addToSharedList(url, allUsers);
}

// The login window's lists

const CFString* userScope(bool allUsers) {
    return allUsers ? kCFPreferencesAnyUser : kCFPreferencesCurrentUser;
}

/// -1 when the list doesn't hold the application.
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

// Either kind

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
    if (getgrouplist(name, 0, groups, &count) < 0)
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
