// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFPropertyList.h"

// Preferences: one property list a domain and user. This user's domain `com.example.app` is the
// file $XDG_CONFIG_HOME/Preferences/com.example.app.plist; all users' domain is Preferences/… under
// the folders of $XDG_CONFIG_DIRS, read in their order and written in the first. Application-level
// reads look in this user's file, then in all users', which so serve as an administrator's
// defaults; they don't look in the global domain.
//
// The process keeps each domain in memory from its first use. Setting a value changes that copy and
// marks the key; synchronising takes the domain's lock, reads the file afresh, applies the marked
// keys, writes a new file, flushes it to disk and renames it over the old one. A key is marked also
// when it is set to the value that it has in memory: the file may hold another one by now. See
// PreferencesMerging.h for keys that shall yield to that one.
//
// A file that isn't a property list with a dictionary at its root reads as empty on first use, and
// leaves the copy in memory as it is later on. The next writing keeps it aside as
// <file>.damaged-<n> and stores the whole copy. A file that can't be read at all (refused, not a
// regular file) is never replaced. Where the file is a symbolic link, its target is read and
// replaced. This user's files are created with mode 0600 and folders with 0700; all users' with
// 0644 and 0755, for everyone reads them.
//
// A domain's name is a file's name: an empty one, or one with a slash, has no values, keeps none
// and doesn't synchronise.

/// The user scopes; compared by address.
extern const CFString* const kCFPreferencesCurrentUser;
extern const CFString* const kCFPreferencesAnyUser;
extern const CFString* const kCFPreferencesCurrentHost;
extern const CFString* const kCFPreferencesAnyHost;
/// The global domain, the file .GlobalPreferences.plist.
extern const CFString* const kCFPreferencesAnyApplication;

/// This user's value, else all users', else null.
CFRef<const CFType> CFPreferencesCopyAppValue(const CFString* key, const CFString* domain);

/// `*exists` (may be null) tells whether the key is there and reads as a boolean: a boolean; a
/// number, non-zero being true; or the text yes, true, no or false in any letter case.
bool CFPreferencesGetAppBooleanValue(const CFString* key, const CFString* domain, bool* exists);

/// `*exists` (may be null) tells whether the key is there and reads as an integer: a number, of
/// which a fraction is cut off; or text that is wholly a decimal integer of 64 bits, with or
/// without a sign, without blanks.
CFIndex CFPreferencesGetAppIntegerValue(const CFString* key, const CFString* domain, bool* exists);

/// Sets this user's value; a null value removes the key. What a property list can't hold isn't set.
void CFPreferencesSetAppValue(const CFString* key, const CFType* value, const CFString* domain);

/// Writes the keys set since the last time, and takes in what others wrote. False when the file
/// couldn't be read or written, or another program held its lock for two seconds; the keys stay
/// marked and the next call tries again.
bool CFPreferencesAppSynchronize(const CFString* domain);

// The same with a user scope of the caller's choice. The host says nothing here: files belong to
// this machine.
CFRef<const CFType> CFPreferencesCopyValue(const CFString* key, const CFString* domain,
                                           const CFString* user, const CFString* host);
void CFPreferencesSetValue(const CFString* key, const CFType* value, const CFString* domain,
                           const CFString* user, const CFString* host);
bool CFPreferencesSynchronize(const CFString* domain, const CFString* user, const CFString* host);
