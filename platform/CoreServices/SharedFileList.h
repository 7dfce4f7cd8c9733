// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreServices/Files.h"
#include "platform/Security/Authorization.h"

// Launch Services' shared lists of the applications that are opened at login. On Linux they are
// autostart entries, *.desktop files. This user's are in `autostart` under $XDG_CONFIG_HOME, all
// users' in `autostart` under the first of $XDG_CONFIG_DIRS. An item is an entry that is started at
// login. Broken files aren't items, nor are entries that are hidden, switched off or without their
// program. Autostart has no order; here items are in the order in which their files last changed.
//
// Entries of other programs are listed too, and never changed. Nothing is kept in memory: taking a
// snapshot reads the folders.

/// The two lists. They are compared by address.
extern const CFString* const kLSSharedFileListSessionLoginItems; ///< this user's
extern const CFString* const kLSSharedFileListGlobalLoginItems;  ///< all users'

enum : UInt32 {
    kLSSharedFileListNoUserInteraction = 1,
    kLSSharedFileListDoNotMountVolumes = 2,
};

class LSSharedFileList final : public CFType {
public:
    explicit LSSharedFileList(bool isGlobal) : isGlobal_(isGlobal) {}

    /// The folder for new entries.
    std::string folder() const;

    /// All folders that are searched, in order.
    std::vector<std::string> folders() const;

    bool isGlobal() const { return isGlobal_; }

    CFTypeID typeID() const override { return CFTypeID::SharedFileList; }

private:
    bool isGlobal_;
};

class LSSharedFileListItem final : public CFType {
public:
    LSSharedFileListItem(std::string file, std::string application)
        : file_(std::move(file)), application_(std::move(application)) {}

    const std::string& file() const { return file_; } ///< the path of its entry

    const std::string& application() const { return application_; } ///< empty when unknown

    CFTypeID typeID() const override { return CFTypeID::SharedFileListItem; }

private:
    std::string file_;
    std::string application_;
};

/// Stands for "after the last item".
extern const LSSharedFileListItem* const kLSSharedFileListItemLast;

/// Null for any other type of list.
CFRef<LSSharedFileList> LSSharedFileListCreate(const CFString* listType);

/// Has no effect here: file permissions decide.
OSStatus LSSharedFileListSetAuthorization(LSSharedFileList* list, AuthorizationRef authorization);

/// The items as they are now, each an LSSharedFileListItem. Empty when the folder is missing, null
/// when it can't be read. `seed` (may be null) is set to 0.
CFRef<CFArray> LSSharedFileListCopySnapshot(const LSSharedFileList* list, UInt32* seed);

/// The application that the item starts: its bundle, or else its program. It needn't exist. `flags`
/// has no effect; `ref` must be null. fnfErr when the entry names its program without a path.
OSStatus LSSharedFileListItemResolve(const LSSharedFileListItem* item, UInt32 flags,
                                     CFRef<CFURL>* url, FSRef* ref);

/// Deletes the item's entry; if that is a symbolic link, the link. All users' entry of the same
/// file name would then be started. To prevent that, this user gets a hidden entry of that name.
/// fnfErr when it is already gone, permErr when the folder can't be written.
OSStatus LSSharedFileListItemRemove(LSSharedFileList* list, const LSSharedFileListItem* item);

/// Writes an entry that starts the application, as the last item. `after` is
/// kLSSharedFileListItemLast; the other pointers are null. The file is named after the bundle's
/// identifier. A number is added when another program's entry, or one that the user has switched
/// off, has the name. On desktops where another entry already starts the application, this one has
/// no effect. Null when the URL names no bundle with an executable, or the folder can't be made or
/// written.
CFRef<LSSharedFileListItem> LSSharedFileListInsertItemURL(LSSharedFileList* list,
                                                          const LSSharedFileListItem* after,
                                                          const CFString* displayName,
                                                          const CFType* icon, const CFURL* url,
                                                          const CFDictionary* propertiesToSet,
                                                          const CFArray* propertiesToClear);

/// Whether both paths name the same application: the same bundle, in any letter case, or copies of
/// it in different folders.
bool isSameLoginApplication(const std::string& path, const std::string& other);

/// Keeps all users' items of the application from being started for this user. For each it writes a
/// hidden entry of the same file name. False when one can't be written.
bool hideGlobalLoginItems(const CFURL* application);

/// Whether the user has switched off an entry of the application.
bool isLoginItemSwitchedOff(const CFURL* application);

/// If the user has switched off an entry of the application, switches it on again and keeps the
/// rest of it. Deletes its other switched-off entries, and those of copies in other folders.
void forgetSwitchedOffLoginItem(const CFURL* application);
