// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

// What the platform layer knows to have gone wrong, in words for the user. The pane's own modules
// stay silent.

/// Tells of settings files that can't be read or written. For when the pane has been opened.
void tellOfUnusableFiles();

/// From now on tells of a started application that doesn't come up or keeps ending, with a button
/// to start it again, until it is well.
void tellOfLaunches();

/// From now on tells while what isn't stored yet can't be kept for the case of a crash either.
void tellOfUnkeptChanges();

/// Why settings aren't saved, in words that follow a colon. Empty when all are.
std::string whyNotSaved();

/// Tells that settings aren't saved, and why. `tryAgain` and `leave` are what the user may choose;
/// a copy for the user to keep is made here.
void tellNotSaved(std::function<void()> tryAgain, std::function<void()> leave);

/// After a later success.
void withdrawNotSaved();
