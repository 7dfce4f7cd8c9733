#include "platform/CoreFoundation/CFData.h"

#include <string_view>

bool CFData::isEqual(const CFType& other) const {
    return bytes_ == static_cast<const CFData&>(other).bytes_;
}

CFHashCode CFData::hash() const {
    return std::hash<std::string_view>()(
        {reinterpret_cast<const char*>(bytes_.data()), bytes_.size()});
}

CFTypeID CFDataGetTypeID() {
    return CFTypeID::Data;
}

CFRef<CFData> CFDataCreate(const UInt8* bytes, CFIndex length) {
    return CFRef<CFData>::adopt(new CFData(std::vector<UInt8>(bytes, bytes + length)));
}

const UInt8* CFDataGetBytePtr(const CFData* data) {
    return data->bytes().data();
}

CFIndex CFDataGetLength(const CFData* data) {
    return static_cast<CFIndex>(data->bytes().size());
}
