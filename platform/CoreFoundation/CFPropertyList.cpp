// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"

#include "platform/CoreFoundation/detail/PropertyListBinary.h"
#include "platform/CoreFoundation/detail/PropertyListXML.h"

CFRef<const CFType> CFPropertyListCreateFromXMLData(const CFData* data) {
    const auto bytes = data->bytes();
    if (bytes.size() > kPropertyListMaxSize)
        return nullptr;
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.starts_with("bplist") ? readBinaryPropertyList(text) : readXMLPropertyList(text);
}

std::string propertyListToXML(const CFType* propertyList) {
    std::string document = writeXMLPropertyList(propertyList);
    return document.size() <= kPropertyListMaxSize ? document : std::string();
}
