#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/Controls.h"

#include <span>
#include <string>
#include <vector>

/// What the code expects of a Carbon interface file. A static object beside the code tells it, so
/// that the file can be checked before a user meets the window.
struct NibRequirement {
    const char* nib; ///< the file's name without its extension
    std::span<const char* const> windows;
    // In each of the windows:
    std::span<const ControlID> controls;
    std::span<const UInt32> commands;
};

class NibRequirementRegistration {
public:
    explicit NibRequirementRegistration(const NibRequirement& requirement);
};

/// Loads the interface files of which the code in the process tells something and looks for what it
/// expects. False when anything is missing or wrong; `errors` then says what, one line each,
/// beginning with the file's path.
bool checkCarbonNibs(const CFBundle* bundle, std::vector<std::string>& errors);
