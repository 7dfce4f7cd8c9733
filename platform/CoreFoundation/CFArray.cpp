// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFArray.h"

#include <algorithm>

bool CFArray::isEqual(const CFType& other) const {
    const Items& theirs = static_cast<const CFArray&>(other).items_;
    return std::equal(items_.begin(), items_.end(), theirs.begin(), theirs.end(),
                      [](const auto& a, const auto& b) { return CFEqual(a.get(), b.get()); });
}

CFTypeID CFArrayGetTypeID() {
    return CFTypeID::Array;
}

CFRef<CFMutableArray> CFArrayCreateMutable() {
    return CFRef<CFMutableArray>::adopt(new CFMutableArray(CFArray::Items()));
}

CFRef<CFMutableArray> CFArrayCreateMutableCopy(const CFArray* array) {
    return CFRef<CFMutableArray>::adopt(new CFMutableArray(array->items()));
}

CFIndex CFArrayGetCount(const CFArray* array) {
    return static_cast<CFIndex>(array->items().size());
}

const CFType* CFArrayGetValueAtIndex(const CFArray* array, CFIndex index) {
    if (index < 0 || index >= CFArrayGetCount(array))
        return nullptr;
    return array->items()[static_cast<std::size_t>(index)].get();
}

void CFArrayApplyFunction(const CFArray* array, CFRange range, CFArrayApplierFunction function,
                          void* context) {
    const CFIndex count = CFArrayGetCount(array);
    if (range.location < 0 || range.location > count || range.length > count - range.location)
        return;
    for (CFIndex i = 0; i < range.length; ++i)
        function(CFArrayGetValueAtIndex(array, range.location + i), context);
}

void CFArrayAppendValue(CFMutableArray* array, const CFType* value) {
    array->items().push_back(CFRef<const CFType>::retain(value));
}

void CFArrayRemoveValueAtIndex(CFMutableArray* array, CFIndex index) {
    if (index >= 0 && index < CFArrayGetCount(array))
        array->items().erase(array->items().begin() + index);
}
