// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <vector>

/// An ordered list of objects, each retained. Immutable, except CFMutableArray.
class CFArray : public CFType {
public:
    using Items = std::vector<CFRef<const CFType>>;

    explicit CFArray(Items items) : items_(std::move(items)) {}

    const Items& items() const { return items_; }

    CFTypeID typeID() const override { return CFTypeID::Array; }

    bool isEqual(const CFType& other) const override;

    CFHashCode hash() const override { return items_.size(); }

protected:
    Items items_;
};

class CFMutableArray final : public CFArray {
public:
    using CFArray::CFArray;

    Items& items() { return items_; }
};

CFTypeID CFArrayGetTypeID();
CFRef<CFMutableArray> CFArrayCreateMutable();
CFRef<CFMutableArray> CFArrayCreateMutableCopy(const CFArray* array);
CFIndex CFArrayGetCount(const CFArray* array);
/// Null for an index outside the array.
const CFType* CFArrayGetValueAtIndex(const CFArray* array, CFIndex index);

/// Calls the function for each item of the range, in order. For a range outside the array it calls
/// nothing. The function must not change the array.
using CFArrayApplierFunction = void (*)(const CFType* value, void* context);
void CFArrayApplyFunction(const CFArray* array, CFRange range, CFArrayApplierFunction function,
                          void* context);

void CFArrayAppendValue(CFMutableArray* array, const CFType* value);
void CFArrayRemoveValueAtIndex(CFMutableArray* array, CFIndex index);
