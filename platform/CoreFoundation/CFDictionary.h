// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <map>

/// A dictionary with strings as keys. Values are retained. Immutable, except CFMutableDictionary.
/// Iterates in the order of the keys.
class CFDictionary : public CFType {
public:
    using Items = std::map<std::u16string, CFRef<const CFType>, std::less<>>;

    explicit CFDictionary(Items items) : items_(std::move(items)) {}

    const Items& items() const { return items_; }

    CFTypeID typeID() const override { return CFTypeID::Dictionary; }

    bool isEqual(const CFType& other) const override;

    CFHashCode hash() const override { return items_.size(); }

protected:
    Items items_;
};

class CFMutableDictionary final : public CFDictionary {
public:
    using CFDictionary::CFDictionary;

    Items& items() { return items_; }
};

CFTypeID CFDictionaryGetTypeID();
CFRef<CFMutableDictionary> CFDictionaryCreateMutable();
/// Borrowed. Null when the key is missing.
const CFType* CFDictionaryGetValue(const CFDictionary* dictionary, const CFString* key);
void CFDictionarySetValue(CFMutableDictionary* dictionary, const CFString* key,
                          const CFType* value);
