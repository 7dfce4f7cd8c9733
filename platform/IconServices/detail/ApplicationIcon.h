// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/detail/InstalledApplications.h"
#include "platform/IconServices/Icons.h"

/// The application's icon. Null when it has none that can be read. The same object until a file of
/// the icon changes.
CFRef<Icon> iconOfApplication(const InstalledApplication& application);
