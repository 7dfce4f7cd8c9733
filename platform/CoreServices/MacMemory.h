// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <memory>

/// A block of memory, or null; an empty block isn't null. Who holds the handle owns the block, and
/// its destructor disposes of it. Blocks stay where they are, so there is nothing to lock.
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

/// A block of `size` bytes, of any content. Null when the size is negative or memory is short.
Handle NewHandle(CFIndex size);

/// In bytes; 0 for a null handle.
CFIndex GetHandleSize(const Handle& handle);
