// SPDX-License-Identifier: MIT
#include "src/files/proputil.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "src/files/fsutil.h"

CFRef<const CFType> propUtilReadFile(const CFURL* url, CFTypeID expectedType) {
    const auto data = fsGetFileContents(url);
    if (!data)
        return nullptr;
    auto list = CFPropertyListCreateFromXMLData(data.get());
    return list && CFGetTypeID(list.get()) == expectedType ? list : nullptr;
}

CFRef<const CFType> propUtilReadResourceFile(const CFBundle* bundle, const CFString* name,
                                             CFTypeID expectedType) {
    if (!bundle)
        return nullptr;
    const auto url = CFBundleCopyResourceURL(bundle, name, CFSTR("plist"), nullptr);
    return url ? propUtilReadFile(url.get(), expectedType) : nullptr;
}

const CFString* propUtilGetDictString(const CFDictionary* dictionary, const CFString* key) {
    return dynamicCFCast<CFString>(CFDictionaryGetValue(dictionary, key));
}

CFRef<const CFString> propUtilGetRetainedDictString(const CFDictionary* dictionary,
                                                    const CFString* key) {
    return CFRef<const CFString>::retain(propUtilGetDictString(dictionary, key));
}

void propUtilForEachArrayItemDo(
    const CFArray* array, const std::function<void(const CFType* item, CFIndex index)>& function) {
    struct Walk {
        const std::function<void(const CFType*, CFIndex)>& function;
        CFIndex index;
    } walk{function, 0};

    CFArrayApplyFunction(
        array, {0, CFArrayGetCount(array)},
        [](const CFType* item, void* context) {
            auto* at = static_cast<Walk*>(context);
            at->function(item, at->index++);
        },
        &walk);
}
