// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <memory>

/// A block of memory, or null. An empty block isn't null. The handle owns the block and disposes of
/// it. Blocks don't move, so they needn't be locked.
class Handle {
public:
    Handle() = default;

    explicit operator bool() const { return block_ != nullptr; }

    /// The first byte; null for a null handle.
    UInt8* operator*() const { return block_.get(); }

private:
    friend Handle NewHandle(CFIndex size);
    friend CFIndex GetHandleSize(const Handle& handle);

    std::unique_ptr<UInt8[]> block_;
    CFIndex size_ = 0;
};

/// A block of `size` bytes with undefined content. Null when the size is negative or memory is
/// short.
Handle NewHandle(CFIndex size);

/// In bytes; 0 for a null handle.
CFIndex GetHandleSize(const Handle& handle);
