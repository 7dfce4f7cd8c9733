// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/Controls.h"

#include <span>
#include <string>
#include <vector>

/// What code expects in a Carbon interface file. A static object beside the code registers it, so
/// that the build can check the file.
struct NibRequirement {
    const char* nib; ///< the file's name without its extension
    std::span<const char* const> windows;
    // In each window:
    std::span<const ControlID> controls;
    std::span<const UInt32> commands;
};

class NibRequirementRegistration {
public:
    explicit NibRequirementRegistration(const NibRequirement& requirement);
};

/// Loads and checks the interface file of every registered requirement. False when anything is
/// missing or wrong. `errors` then says what, a line each, beginning with the file's path.
bool checkCarbonNibs(const CFBundle* bundle, std::vector<std::string>& errors);
