// SPDX-License-Identifier: MIT
#pragma once

#include "src/prefs.h"

/// What the settings are for somebody who has stored none: the administrator's, from the domain of
/// all users, else the factory's.
PrefsRecord defaultRecord();
