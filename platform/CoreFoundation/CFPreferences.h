// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFPropertyList.h"

// Preferences: a property list for each domain and user. The domain `com.example.app` of this user
// is the file $XDG_CONFIG_HOME/Preferences/com.example.app.plist. All users' domains are in
// Preferences/ under the folders of $XDG_CONFIG_DIRS. They are searched in order; the first is
// written. Application-level reads look in this user's file, then in all users'. So an
// administrator can set defaults there. The global domain isn't searched.
//
// A domain is read on first use and kept in memory. Setting a value changes that copy and marks the
// key. Synchronising takes the domain's lock, reads the file again, applies the marked keys, writes
// a new file, flushes it to disk and renames it over the old one. Setting the same value marks the
// key too, since the file may have changed meanwhile. PreferencesMerging.h has an exception.
//
// A damaged file is one that is no property list with a dictionary at its root. On first use it
// reads as empty; later the copy in memory stays. The next write keeps it as <file>.damaged-<n> and
// stores the whole copy. A file that can't be read at all (no permission, no regular file) is never
// replaced. Of a symbolic link the target is read and replaced. This user's files get mode 0600 and
// folders 0700, all users' 0644 and 0755, so that everyone can read them.
//
// A domain's name is a file name. An empty name, or one with a slash, has no values and can't be
// synchronised.

/// The user scopes. They are compared by address.
extern const CFString* const kCFPreferencesCurrentUser;
extern const CFString* const kCFPreferencesAnyUser;
extern const CFString* const kCFPreferencesCurrentHost;
extern const CFString* const kCFPreferencesAnyHost;
/// The global domain, the file .GlobalPreferences.plist.
extern const CFString* const kCFPreferencesAnyApplication;

/// This user's value, else all users', else null.
CFRef<const CFType> CFPreferencesCopyAppValue(const CFString* key, const CFString* domain);

/// `*exists` (may be null) tells whether the key exists and reads as a boolean: a boolean, a number
/// (true unless 0), or the text yes, true, no or false in any letter case.
bool CFPreferencesGetAppBooleanValue(const CFString* key, const CFString* domain, bool* exists);

/// `*exists` (may be null) tells whether the key exists and reads as an integer: a number, whose
/// fraction is dropped, or a decimal integer of 64 bits as text. The text may have a sign but no
/// blanks.
CFIndex CFPreferencesGetAppIntegerValue(const CFString* key, const CFString* domain, bool* exists);

/// Sets this user's value. Null removes the key. A value that a property list can't hold isn't set.
void CFPreferencesSetAppValue(const CFString* key, const CFType* value, const CFString* domain);

/// Writes the keys set since the last call, and takes in what others wrote. False when the file
/// can't be read or written, or another program held its lock for two seconds. Keys then stay
/// marked for the next call.
bool CFPreferencesAppSynchronize(const CFString* domain);

// The same with a given user scope. The host has no effect.
CFRef<const CFType> CFPreferencesCopyValue(const CFString* key, const CFString* domain,
                                           const CFString* user, const CFString* host);
void CFPreferencesSetValue(const CFString* key, const CFType* value, const CFString* domain,
                           const CFString* user, const CFString* host);
bool CFPreferencesSynchronize(const CFString* domain, const CFString* user, const CFString* host);
