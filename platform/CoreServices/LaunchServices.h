// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/Files.h"

constexpr OSStatus kLSUnknownErr = -10810;
constexpr OSStatus kLSNotAnApplicationErr = -10811;
constexpr OSStatus kLSApplicationNotFoundErr = -10814;

/// Starts the application whose bundle the URL names, detached from this process. Its executable is
/// Contents/Linux/<CFBundleExecutable>. Doesn't wait for it to come up: LaunchTrouble.h tells
/// whether it did. An application that this process started isn't started again while it runs or
/// starts. If it was asked to quit, it is started again when its process has ended.
///
/// It inherits the environment. Its current folder is the root. Input and output are /dev/null;
/// errors go where this process's go. `launched` (may be null) receives the bundle's URL.
/// kLSApplicationNotFoundErr when the URL names no bundle, kLSNotAnApplicationErr when the bundle
/// has no executable, kLSUnknownErr when the executable can't be started.
///
/// /System/Library/PreferencePanes/UniversalAccessPref.prefPane opens the running desktop's
/// accessibility settings. kLSApplicationNotFoundErr when none are known.
OSStatus LSOpenCFURLRef(const CFURL* url, CFRef<CFURL>* launched);

/// Finds an installed application that fits all given criteria: creator code (unless 0), bundle
/// identifier and file name with extension (each unless null). At least one must be given.
///
/// Searches the folders `applications` under $XDG_DATA_HOME, then under each of $XDG_DATA_DIRS. The
/// first that fits is found: a bundle `Name.app` whose Info.plist has CFBundleSignature and
/// CFBundleIdentifier, or a desktop entry `<identifier>.desktop`. Desktop entries have no creator
/// code. Once one is found by creator and identifier, it keeps that creator. An entry that is
/// Hidden, or whose TryExec is missing, isn't installed. It hides entries of the same name in later
/// folders.
///
/// Changes show at the next call. Only what changed is read again, so a call takes microseconds.
/// `ref` and `url` (either may be null) receive the bundle's folder or the entry's file.
/// kLSApplicationNotFoundErr when there is none.
OSStatus LSFindApplicationForInfo(OSType creator, const CFString* bundleID, const CFString* name,
                                  FSRef* ref, CFRef<CFURL>* url);
