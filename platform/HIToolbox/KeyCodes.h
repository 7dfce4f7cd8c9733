// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

/// The code of keys that Apple keyboards don't have.
constexpr UInt16 kNoKeyCode = 0xFFFF;
