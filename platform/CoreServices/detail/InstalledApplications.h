// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <optional>
#include <string>

/// An application as it is installed: a bundle or a desktop entry.
struct InstalledApplication {
    std::string path; ///< the bundle's folder, or the entry's file
    bool isBundle = false;
    std::string icon; ///< CFBundleIconFile or Icon, as it is written there; may be empty
};

/// Finds an application as LSFindApplicationForInfo does. Criteria that are 0 or empty don't count.
std::optional<InstalledApplication> findInstalledApplication(OSType creator,
                                                             const std::string& identifier,
                                                             const std::string& fileName);

/// The application by its creator code alone; a desktop entry by the identifier that was last found
/// along with the code.
std::optional<InstalledApplication> findApplicationOfCreator(OSType creator);
