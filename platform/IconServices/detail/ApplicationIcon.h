// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/detail/InstalledApplications.h"
#include "platform/IconServices/Icons.h"

/// The application's icon; null when it has none that can be read. The same object as long as no
/// file of the icon changes.
CFRef<Icon> iconOfApplication(const InstalledApplication& application);
