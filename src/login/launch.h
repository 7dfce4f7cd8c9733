// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"
#include "platform/HIToolbox/Controls.h"

// Opening an application at login: it is put into, and taken out of, the list of this user or the
// list of all users. A system from 10.7 on has shared lists for that, which are changed only under
// the right "system.global-login-items." (sharedlists.h); an older one the login window's own
// (loginwindowlists.h).
//
// `appURL` names the application's bundle; null stands for the running program's own. Main thread
// only. Lists are read anew at every question.

/// How two check boxes, for this user and for all users, are to look.
using LaunchUIState = UInt32;

enum : LaunchUIState {
    kLaunchThisUserChecked = 0x01,
    kLaunchThisUserEnabled = 0x02,
    kLaunchAllUsersChecked = 0x04,
    kLaunchAllUsersEnabled = 0x08, ///< the user is an administrator
    kLaunchAllUsersShown = 0x10,
};

/// The application that `appURL` stands for; null when the running program lies in no bundle.
CFRef<const CFURL> getRetainedAppURL(const CFURL* appURL);

/// Makes the list hold the application once, at its end, or not at all. A shared list that is like
/// that already isn't written. False when the right is refused or the list can't be changed; on a
/// system before 10.7 an item that can't be added counts as success. False without an application.
bool launchSetAppIsAutoLaunched(const CFURL* appURL, bool autoLaunch, bool allUsers);

/// To be called when the user switches launching on here: an entry that was switched off elsewhere,
/// in the desktop's own tool, is respected by the operation above unless this came before.
void launchForgetSwitchedOff(const CFURL* appURL);

/// An application that is opened for all users shows as checked for this one; without the other
/// check box (`showAllUsers` false) that can't be changed, and nothing else is told. 0 without an
/// application.
LaunchUIState launchGetCurrentUIStateForApp(const CFURL* appURL, bool showAllUsers);

/// Whether the application is in either list.
bool launchAppIsAutoLaunched(const CFURL* appURL);

/// Binds the check boxes of a dialog: they show the lists' state, and a hit on one changes its
/// list. `allUsersCheckbox` may be null. Ends an earlier binding; without the first check box or an
/// application that is all it does. Neither box is owned, and the binding is to be ended before
/// they go.
void launchBeginUI(const CFURL* appURL, ControlRef thisUserCheckbox, ControlRef allUsersCheckbox);

/// Shows the lists' state anew.
void launchUpdateUI();
void launchEndUI();
