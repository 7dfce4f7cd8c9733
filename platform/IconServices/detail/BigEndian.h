// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <string_view>

/// The number in the first four bytes. There must be at least four.
inline UInt32 bigEndian32(std::string_view bytes) {
    UInt32 number = 0;
    for (std::size_t i = 0; i < 4; ++i)
        number = number << 8 | static_cast<UInt8>(bytes[i]);
    return number;
}
