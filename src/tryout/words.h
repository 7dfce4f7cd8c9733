// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/advice.h"
#include "src/tryout/pasttry.h"
#include "src/tryout/session.h"
#include "src/tryout/steadiness.h"

#include <string>

/// A try's result in plain words, in UTF-8. Nothing here judges the user.
namespace tryout {

/// What happened, and what would be better.
std::string resultText(const Advice& advice, const Conditions& tried, const Measured& measured,
                       Trigger::Way way);

/// The measured numbers for a therapist, and what they mean for other settings.
std::string detailsText(const Advice& advice, const Steadiness& steadiness);

/// The result of the last sweep.
std::string lastText(const Session& session);

/// What to do now, or what just happened.
std::string courseText(const Session& session, const Trigger& trigger);

/// When keys can't be kept from the agent and the desktop.
std::string sharedKeysText();

/// How to leave with the switch alone.
std::string leaveText(const Trigger& trigger);

/// While a press is held that may become one that leaves, and once it has.
std::string holdText(bool isEnough);

/// When no press has come yet: what counts as one, and where to look whether it arrives.
std::string noPressText(const Trigger& trigger);

/// After a long time without a press.
std::string restText();

/// The size of the marks, in millimetres along the line's way.
std::string targetText(double height, bool isPaletteButton);

/// What the chart shows, and its top in seconds.
std::string chartText(double spread);

/// A try in the history, as speech.
std::string pastTryText(const PastTry& past);

/// The same as a row of a table, and the headings, with a separator between cells.
std::string pastTryRow(const PastTry& past);
std::string pastTryHeadings();

/// Removes the first cell from the front of a row, and returns it.
std::string_view cutCell(std::string_view& row);

} // namespace tryout
