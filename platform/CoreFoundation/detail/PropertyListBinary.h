// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <string_view>

/// Reads a binary property list of version "bplist00". Null unless the bytes are exactly one sound
/// list within the limits of CFPropertyList.h.
CFRef<const CFType> readBinaryPropertyList(std::string_view bytes);
