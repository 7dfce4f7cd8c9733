// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <cstdlib>
#include <memory>
#include <span>
#include <vector>

struct MallocDeallocator {
    void operator()(UInt8* bytes) const { std::free(bytes); }
};

/// A buffer from malloc.
using MallocBuffer = std::unique_ptr<UInt8[], MallocDeallocator>;

/// Bytes. Immutable.
class CFData final : public CFType {
public:
    explicit CFData(std::vector<UInt8> bytes);
    CFData(MallocBuffer bytes, std::size_t length);

    std::span<const UInt8> bytes() const { return {bytes_.get(), length_}; }

    CFTypeID typeID() const override { return CFTypeID::Data; }

    bool isEqual(const CFType& other) const override;
    CFHashCode hash() const override;

private:
    std::shared_ptr<const UInt8> bytes_; ///< freed the way they were allocated
    std::size_t length_;
};

CFRef<CFData> CFDataCreate(const UInt8* bytes, CFIndex length);

/// Takes over a buffer of at least `length` bytes and frees it with the object. For a null buffer
/// or a negative length the result is null, and the buffer is freed.
CFRef<CFData> CFDataCreateWithBytesNoCopy(MallocBuffer bytes, CFIndex length);
