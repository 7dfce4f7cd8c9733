// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

constexpr OSType gestaltSystemVersion = fourCharCode("sysv");

constexpr OSErr gestaltUndefSelectorErr = -5551;

/// The version of the system that this layer stands for: 10.7.0, as 0x1070. gestaltUndefSelectorErr
/// for any selector but gestaltSystemVersion.
OSErr Gestalt(OSType selector, SInt32* response);
