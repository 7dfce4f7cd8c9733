// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/Controls.h"

#include <span>
#include <string>
#include <vector>

/// What the code expects in a Carbon interface file. Registered by a static object beside that
/// code, so that the build can check the file.
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

/// Loads the interface file of every registered requirement and checks it. False when anything is
/// missing or wrong; `errors` then says what, one line each, beginning with the file's path.
bool checkCarbonNibs(const CFBundle* bundle, std::vector<std::string>& errors);
