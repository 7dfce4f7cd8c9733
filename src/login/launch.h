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

/// To be called when the user switches launching on in the pane. Without it
/// launchSetAppIsAutoLaunched leaves an entry alone that was switched off elsewhere, in the
/// desktop's own tool.
void launchForgetSwitchedOff(const CFURL* appURL);

/// How the check boxes are to look. An application that is opened for all users is checked for this
/// one, too. `showAllUsers` says whether there is the second box: without it that check can't be
/// taken off, and the other bits are 0. 0 without an application.
LaunchUIState launchGetCurrentUIStateForApp(const CFURL* appURL, bool showAllUsers);

/// Whether the application is in either list.
bool launchAppIsAutoLaunched(const CFURL* appURL);

/// Binds the check boxes of a dialog: they show the lists' state, and a hit on one changes its
/// list. `allUsersCheckbox` may be null. Ends an earlier binding first, and does no more without
/// the first check box or an application. Neither box is owned: end the binding before they go.
void launchBeginUI(const CFURL* appURL, ControlRef thisUserCheckbox, ControlRef allUsersCheckbox);

/// Shows the lists' state anew.
void launchUpdateUI();
void launchEndUI();
