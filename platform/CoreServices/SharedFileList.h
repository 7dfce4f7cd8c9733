// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreServices/Files.h"
#include "platform/Security/Authorization.h"

// Launch Services' shared lists of the applications that are opened at login. On Linux they are the
// autostart entries, *.desktop: `autostart` under $XDG_CONFIG_HOME for this user and
// under the first of $XDG_CONFIG_DIRS for all users. An item is an entry that a login heeds: broken
// files, and entries that are hidden, switched off or without their program, aren't items. Desktops
// know no order; here items are in the order in which their files were last changed.
//
// Entries that other programs own are listed like any other, and never changed. Nothing is kept in
// memory: a list is read when its snapshot is taken.

/// The two lists; compared by address.
extern const CFString* const kLSSharedFileListSessionLoginItems; ///< this user's
extern const CFString* const kLSSharedFileListGlobalLoginItems;  ///< all users'

enum : UInt32 {
    kLSSharedFileListNoUserInteraction = 1,
    kLSSharedFileListDoNotMountVolumes = 2,
};

class LSSharedFileList final : public CFType {
public:
    explicit LSSharedFileList(bool isGlobal) : isGlobal_(isGlobal) {}

    /// Where new entries are made.
    std::string folder() const;

    /// All that are searched, the first first.
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

/// Says nothing here: the file system decides what may be changed.
OSStatus LSSharedFileListSetAuthorization(LSSharedFileList* list, AuthorizationRef authorization);

/// The items as they are now, each an LSSharedFileListItem. A folder that isn't there has none;
/// null when it can't be read. `seed` (may be null) is set to 0.
CFRef<CFArray> LSSharedFileListCopySnapshot(const LSSharedFileList* list, UInt32* seed);

/// The application that the item starts: its bundle, or else its program. `ref` is null. fnfErr
/// when the entry names its program without a path. Whether anything is there isn't looked at, so
/// that neither a user nor a volume is needed, whatever the flags.
OSStatus LSSharedFileListItemResolve(const LSSharedFileListItem* item, UInt32 flags,
                                     CFRef<CFURL>* url, FSRef* ref);

/// Deletes the item's entry; of a symbolic link, the link. Where all users' list has an entry of
/// the same file name, which would be heeded from now on, this user's list gets a hidden one of
/// that name. fnfErr when it is gone already, permErr when the folder can't be written.
OSStatus LSSharedFileListItemRemove(LSSharedFileList* list, const LSSharedFileListItem* item);

/// Writes an entry that starts the application, as the last item: `after` is
/// kLSSharedFileListItemLast, the others are null. Its file is named for the bundle's identifier,
/// with a number where another program, or an entry that the user has switched off, has that name
/// already. Where another entry starts the application on certain desktops only, this one isn't
/// heeded on those. Null when the URL names no bundle with an executable, or the folder can't be
/// made or written.
CFRef<LSSharedFileListItem> LSSharedFileListInsertItemURL(LSSharedFileList* list,
                                                          const LSSharedFileListItem* after,
                                                          const CFString* displayName,
                                                          const CFType* icon, const CFURL* url,
                                                          const CFDictionary* propertiesToSet,
                                                          const CFArray* propertiesToClear);

/// Whether both paths are of one application: the same bundle, in any letter case, or copies of it
/// in different folders.
bool isSameLoginApplication(const std::string& path, const std::string& other);

/// Keeps all users' items of the application from being heeded for this user: a hidden entry of the
/// same file name in this user's folder takes the place of each. False when one can't be written.
bool hideGlobalLoginItems(const CFURL* application);

/// Whether the user has switched off an entry of the application.
bool isLoginItemSwitchedOff(const CFURL* application);

/// If the user has switched off an entry of the application, switches it on again; all else in it
/// stays. Further entries that are switched off, and those of copies in other folders, are deleted.
void forgetSwitchedOffLoginItem(const CFURL* application);
