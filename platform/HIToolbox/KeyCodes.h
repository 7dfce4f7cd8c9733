// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

/// Stands for the code of a key that no Apple keyboard has.
constexpr UInt16 kNoKeyCode = 0xFFFF;
