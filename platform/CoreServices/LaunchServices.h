// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/Files.h"

constexpr OSStatus kLSUnknownErr = -10810;
constexpr OSStatus kLSNotAnApplicationErr = -10811;
constexpr OSStatus kLSApplicationNotFoundErr = -10814;

/// Starts the application whose bundle the URL names, detached from this process: its executable is
/// Contents/Linux/<CFBundleExecutable>. Nothing waits for it to come up; LaunchTrouble.h tells
/// whether it did. An application that this process started before and that still runs, or is still
/// starting, isn't started a second time; one that was asked to quit ('quit') is started as soon as
/// its process has ended.
///
/// It inherits the environment. Its current folder is the root, its input and output are /dev/null,
/// and its errors go where this process's go. `launched` (may be null)
/// receives the bundle's URL. kLSApplicationNotFoundErr when the URL names no bundle,
/// kLSNotAnApplicationErr when the bundle has no executable, kLSUnknownErr when that can't be
/// started.
///
/// /System/Library/PreferencePanes/UniversalAccessPref.prefPane opens the accessibility settings of
/// the desktop that is running; kLSApplicationNotFoundErr where it isn't known to have any.
OSStatus LSOpenCFURLRef(const CFURL* url, CFRef<CFURL>* launched);

/// Finds an installed application by all of the criteria that are given: its creator code (unless
/// 0), its bundle identifier and the name of its file, extension included (either may be null). At
/// least one has to be given.
///
/// Applications are installed in the folders `applications` under $XDG_DATA_HOME and then under
/// each of $XDG_DATA_DIRS; the first that fits is found. It is a bundle `Name.app` whose Info.plist
/// says CFBundleSignature and CFBundleIdentifier; or a desktop entry that is named for the
/// identifier,
/// `<identifier>.desktop`. Entries have no creator code: from the time one is found by creator and
/// identifier, that creator is taken to be its own. An entry that says Hidden, or whose TryExec
/// isn't there, isn't installed, and hides those of its name in later folders.
///
/// What was installed or removed shows at the next call; what didn't change isn't read again, so
/// that a call costs some microseconds. `ref` and `url` (either may be null) receive the bundle's
/// folder or the entry's file. kLSApplicationNotFoundErr when there is none.
OSStatus LSFindApplicationForInfo(OSType creator, const CFString* bundleID, const CFString* name,
                                  FSRef* ref, CFRef<CFURL>* url);
