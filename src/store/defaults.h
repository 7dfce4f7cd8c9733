// SPDX-License-Identifier: MIT
#pragma once

#include "src/store/prefs.h"

/// The settings of somebody who has stored none: the administrator's from all users' domain, else
/// the factory defaults.
PrefsRecord defaultRecord();
