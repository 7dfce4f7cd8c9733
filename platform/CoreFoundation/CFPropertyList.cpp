// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"

#include "platform/CoreFoundation/detail/PropertyListBinary.h"
#include "platform/CoreFoundation/detail/PropertyListXML.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

CFRef<const CFType> CFPropertyListCreateFromXMLData(const CFData* data) {
    const auto bytes = data->bytes();
    if (bytes.size() > kCFPropertyListMaxSize)
        return nullptr;
    const std::string_view text(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    return text.starts_with("bplist") ? readBinaryPropertyList(text) : readXMLPropertyList(text);
}

std::string CFPropertyListToXML(const CFType* propertyList) {
    std::string document = writeXMLPropertyList(propertyList);
    return document.size() <= kCFPropertyListMaxSize ? document : std::string();
}

CFRef<const CFType> CFPropertyListCreateDeepCopy(const CFType* propertyList) {
    if (const auto* string = dynamicCFCast<CFString>(propertyList)) // nearly always
        return isXMLText(string->text()) ? CFRef<CFString>::adopt(new CFString(string->text()))
                                         : nullptr;
    // Within another list, so that one has room for it.
    const CFArray wrapped({CFRef<const CFType>::retain(propertyList)});
    const std::string document = CFPropertyListToXML(&wrapped);
    const auto copy = document.empty() ? nullptr : readXMLPropertyList(document);
    const auto* list = dynamicCFCast<CFArray>(copy.get());
    return list ? list->items().front() : nullptr;
}
