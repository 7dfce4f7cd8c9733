// SPDX-License-Identifier: MIT
#include "src/login/sharedlists.h"

#include "platform/CoreServices/SharedFileList.h"

namespace {

/// The right to change a shared list, for one change.
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

/// The path of the item's application. Null when it doesn't resolve.
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

/// Whether the item is the application's, or that of a copy in another folder.
bool matchesAnyCopy(const LSSharedFileListItem* item, const CFString* path) {
    const auto itemPath = copyItemPath(item);
    return itemPath && isSameLoginApplication(toUTF8(itemPath.get()), toUTF8(path));
}

using Matching = decltype(matches)*;

CFIndex countItems(const CFArray* snapshot, const CFString* path, Matching fits) {
    CFIndex count = 0;
    for (CFIndex i = 0; i < CFArrayGetCount(snapshot); ++i)
        count += fits(itemAt(snapshot, i), path);
    return count;
}

/// Whether removing and adding the application would give the same list.
bool isOnceAtEnd(const CFArray* snapshot, const CFString* path, Matching fits) {
    const CFIndex count = CFArrayGetCount(snapshot);
    return countItems(snapshot, path, fits) == 1 &&
           CFEqual(copyItemPath(itemAt(snapshot, count - 1)).get(), path);
}

/// Tries to remove every fitting item. False when one stays.
bool removeFromSharedList(LSSharedFileList* list, const CFArray* snapshot, const CFString* path,
                          Matching fits) {
    bool removed = true;
    for (CFIndex i = 0; i < CFArrayGetCount(snapshot); ++i) {
        const LSSharedFileListItem* item = itemAt(snapshot, i);
        if (fits(item, path))
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

} // namespace

bool sharedListHolds(const CFURL* url, bool allUsers) {
    const auto list = createSharedList(allUsers);
    const auto snapshot = list ? LSSharedFileListCopySnapshot(list.get(), nullptr) : nullptr;
    const auto path = CFURLCopyFileSystemPath(url);
    return snapshot && path && countItems(snapshot.get(), path.get(), matches) > 0;
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
        // All users' copies belong to the administrator. For this user nothing else may start the
        // application.
        const Matching fits = allUsers ? matches : matchesAnyCopy;
        if (!allUsers)
            hideGlobalLoginItems(url);
        if (autoLaunch && isOnceAtEnd(snapshot.get(), path.get(), fits))
            return true;
        if (autoLaunch && !allUsers && countItems(snapshot.get(), path.get(), fits) == 0 &&
            isLoginItemSwitchedOff(url))
            return false; // by the user; that holds until it is switched on here
        if (!removeFromSharedList(list.get(), snapshot.get(), path.get(), fits))
            return false;
    }
    return !autoLaunch || addToSharedList(url, allUsers);
}
