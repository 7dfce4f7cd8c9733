#pragma once

#include "platform/CoreFoundation/CFPropertyList.h"

// Preferences: one property list a domain and user. This user's domain `com.example.app` is the file
// $XDG_CONFIG_HOME/Preferences/com.example.app.plist; all users' domain is Preferences/… under the
// first folder of $XDG_CONFIG_DIRS. Application-level reads look in this user's file, then in all
// users', which so serves as an administrator's defaults.
//
// The process keeps each domain in memory from its first use. Setting a value changes that copy and
// marks the key; synchronising takes the domain's lock, reads the file afresh, applies the marked
// keys, writes a new file, flushes it to disk and renames it over the old one.

/// The user scopes; compared by address.
extern const CFString* const kCFPreferencesCurrentUser;
extern const CFString* const kCFPreferencesAnyUser;
extern const CFString* const kCFPreferencesCurrentHost;
extern const CFString* const kCFPreferencesAnyHost;
/// The global domain, which every application sees.
extern const CFString* const kCFPreferencesAnyApplication;

/// This user's value, else all users', else null.
CFRef<const CFType> CFPreferencesCopyAppValue(const CFString* key, const CFString* domain);

/// `*exists` (may be null) tells whether the key is there and reads as a boolean: a boolean; a
/// number, non-zero being true; or the text yes, true, no or false in any letter case.
bool CFPreferencesGetAppBooleanValue(const CFString* key, const CFString* domain, bool* exists);

/// `*exists` (may be null) tells whether the key is there and reads as an integer: a number, or text
/// that is wholly a decimal integer.
CFIndex CFPreferencesGetAppIntegerValue(const CFString* key, const CFString* domain, bool* exists);

/// Sets this user's value; a null value removes the key.
void CFPreferencesSetAppValue(const CFString* key, const CFType* value, const CFString* domain);

/// Writes the keys set since the last time, and takes in what others wrote. False when the file
/// couldn't be written; the keys stay marked and the next call tries again.
bool CFPreferencesAppSynchronize(const CFString* domain);

// The same with a user scope of the caller's choice. The host says nothing here: files belong to
// this machine.
CFRef<const CFType> CFPreferencesCopyValue(const CFString* key, const CFString* domain,
                                           const CFString* user, const CFString* host);
void CFPreferencesSetValue(const CFString* key, const CFType* value, const CFString* domain,
                           const CFString* user, const CFString* host);
bool CFPreferencesSynchronize(const CFString* domain, const CFString* user, const CFString* host);
