// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

// Words for what the platform layer knows to have gone wrong. The pane's own modules report
// nothing.

/// Reports settings files that can't be read or written. Call it when the pane is open.
void tellOfUnusableFiles();

/// From now on reports a started application that doesn't come up or keeps ending, with a button to
/// start it again, until it is up.
void tellOfLaunches();

/// From now on reports while unsaved changes can't be kept in a file either.
void tellOfUnkeptChanges();

/// Why settings aren't saved, as words after a colon. Empty when all are.
std::string whyNotSaved();

/// Reports that settings aren't saved, and why. The user can choose `tryAgain` or `leave`, or save
/// a copy.
void tellNotSaved(std::function<void()> tryAgain, std::function<void()> leave);

/// Call it after a later success.
void withdrawNotSaved();
