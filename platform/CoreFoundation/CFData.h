#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <vector>

/// Bytes. Immutable.
class CFData final : public CFType {
public:
    explicit CFData(std::vector<UInt8> bytes) : bytes_(std::move(bytes)) {}

    const std::vector<UInt8>& bytes() const { return bytes_; }

    CFTypeID typeID() const override { return CFTypeID::Data; }

    bool isEqual(const CFType& other) const override;
    CFHashCode hash() const override;

private:
    std::vector<UInt8> bytes_;
};

CFTypeID CFDataGetTypeID();
CFRef<CFData> CFDataCreate(const UInt8* bytes, CFIndex length);
const UInt8* CFDataGetBytePtr(const CFData* data);
CFIndex CFDataGetLength(const CFData* data);
