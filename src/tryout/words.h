#pragma once

#include "src/tryout/advice.h"
#include "src/tryout/steadiness.h"

#include <string>

/// A try's result in plain words, in UTF-8. Nothing here judges the user.
namespace tryout {

/// What happened, and what would be better.
std::string resultText(const Advice& advice, const Conditions& tried, const Measured& measured);

/// The settings that would steady the presses; empty when there was nothing to measure.
std::string steadinessText(const Steadiness& steadiness);

/// The measured numbers, for a therapist.
std::string numbersText(const Advice& advice);

} // namespace tryout
