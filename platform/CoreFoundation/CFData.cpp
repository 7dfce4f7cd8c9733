// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFData.h"

#include <algorithm>
#include <string_view>

CFData::CFData(std::vector<UInt8> bytes) : length_(bytes.size()) {
    const auto owner = std::make_shared<const std::vector<UInt8>>(std::move(bytes));
    bytes_ = std::shared_ptr<const UInt8>(owner, owner->data());
}

CFData::CFData(MallocBuffer bytes, std::size_t length)
    : bytes_(bytes.release(), MallocDeallocator()), length_(length) {}

bool CFData::isEqual(const CFType& other) const {
    return std::ranges::equal(bytes(), static_cast<const CFData&>(other).bytes());
}

CFHashCode CFData::hash() const {
    return std::hash<std::string_view>()({reinterpret_cast<const char*>(bytes_.get()), length_});
}

CFRef<CFData> CFDataCreate(const UInt8* bytes, CFIndex length) {
    return CFRef<CFData>::adopt(new CFData(std::vector<UInt8>(bytes, bytes + length)));
}

CFRef<CFData> CFDataCreateWithBytesNoCopy(MallocBuffer bytes, CFIndex length) {
    if (!bytes || length < 0)
        return nullptr;
    return CFRef<CFData>::adopt(new CFData(std::move(bytes), static_cast<std::size_t>(length)));
}
