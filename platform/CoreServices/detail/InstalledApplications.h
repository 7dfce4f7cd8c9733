// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <optional>
#include <string>

/// An installed application: a bundle or a desktop entry.
struct InstalledApplication {
    std::string path; ///< the bundle's folder, or the entry's file
    bool isBundle = false;
    std::string icon; ///< CFBundleIconFile or Icon; may be empty
};

/// Finds an application as LSFindApplicationForInfo does. Criteria that are 0 or empty don't count.
std::optional<InstalledApplication> findInstalledApplication(OSType creator,
                                                             const std::string& identifier,
                                                             const std::string& fileName);

/// Finds the application by its creator code alone. A desktop entry is found by the identifier that
/// last came with the code.
std::optional<InstalledApplication> findApplicationOfCreator(OSType creator);
