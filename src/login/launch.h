// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"
#include "platform/HIToolbox/Controls.h"

// Opening an application at login: adds it to this user's or all users' list and removes it.
// Systems from 10.7 on have shared lists, whose changes need the right "system.global-login-items."
// (sharedlists.h). Older ones have the login window's list (loginwindowlists.h).
//
// `appURL` names the application's bundle; null stands for the running program's. Main thread only.
// Each question reads the lists again.

/// The state of two check boxes, for this user and for all users.
using LaunchUIState = UInt32;

enum : LaunchUIState {
    kLaunchThisUserChecked = 0x01,
    kLaunchThisUserEnabled = 0x02,
    kLaunchAllUsersChecked = 0x04,
    kLaunchAllUsersEnabled = 0x08, ///< the user is an administrator
    kLaunchAllUsersShown = 0x10,
};

/// The application that `appURL` stands for. Null when the running program is in no bundle.
CFRef<const CFURL> getRetainedAppURL(const CFURL* appURL);

/// Makes the list contain the application once, at its end, or not at all. A shared list that is
/// already so isn't written. False without an application, when the right is refused, or when the
/// list can't be changed. Before 10.7 an item that can't be added counts as success.
bool launchSetAppIsAutoLaunched(const CFURL* appURL, bool autoLaunch, bool allUsers);

/// Call it when the user switches launching on in the pane. Otherwise launchSetAppIsAutoLaunched
/// leaves an entry alone that was switched off with the desktop's own tool.
void launchForgetSwitchedOff(const CFURL* appURL);

/// Makes the lists fit the setting: this user's has the application or not, all users' hasn't.
/// `isChosen`: the user has just set it, so an entry that was switched off is switched on again.
void launchFollowSetting(const CFURL* appURL, bool autoLaunch, bool isChosen);

/// The state of the check boxes. If the application is opened for all users, this user's box is
/// checked too. `showAllUsers` says whether there is a second box. Without it that check can't be
/// removed, and the other bits are 0. 0 without an application.
LaunchUIState launchGetCurrentUIStateForApp(const CFURL* appURL, bool showAllUsers);

/// Whether the application is in either list.
bool launchAppIsAutoLaunched(const CFURL* appURL);

/// Connects the check boxes of a dialog: they show the lists, and a click changes its list.
/// `allUsersCheckbox` may be null. An earlier connection is ended first. Does nothing more without
/// the first check box or an application. Owns neither box: call launchEndUI before they go.
void launchBeginUI(const CFURL* appURL, ControlRef thisUserCheckbox, ControlRef allUsersCheckbox);

/// Shows the present state of the lists.
void launchUpdateUI();
void launchEndUI();
