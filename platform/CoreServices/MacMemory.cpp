// SPDX-License-Identifier: MIT
#include "platform/CoreServices/MacMemory.h"

#include <new>

Handle NewHandle(CFIndex size) {
    Handle handle;
    if (size >= 0)
        handle.block_.reset(new (std::nothrow) UInt8[static_cast<std::size_t>(size)]);
    handle.size_ = size;
    return handle;
}

CFIndex GetHandleSize(const Handle& handle) {
    return handle ? handle.size_ : 0;
}
