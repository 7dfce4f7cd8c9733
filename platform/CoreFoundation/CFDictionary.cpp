// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFDictionary.h"

#include <algorithm>

bool CFDictionary::isEqual(const CFType& other) const {
    const Items& theirs = static_cast<const CFDictionary&>(other).items_;
    return std::equal(items_.begin(), items_.end(), theirs.begin(), theirs.end(),
                      [](const auto& a, const auto& b) {
                          return a.first == b.first && CFEqual(a.second.get(), b.second.get());
                      });
}

CFTypeID CFDictionaryGetTypeID() {
    return CFTypeID::Dictionary;
}

CFRef<CFMutableDictionary> CFDictionaryCreateMutable() {
    return CFRef<CFMutableDictionary>::adopt(new CFMutableDictionary(CFDictionary::Items()));
}

const CFType* CFDictionaryGetValue(const CFDictionary* dictionary, const CFString* key) {
    const auto found = dictionary->items().find(key->text());
    return found == dictionary->items().end() ? nullptr : found->second.get();
}

void CFDictionarySetValue(CFMutableDictionary* dictionary, const CFString* key,
                          const CFType* value) {
    dictionary->items().insert_or_assign(key->text(), CFRef<const CFType>::retain(value));
}
