// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFBase.h"

CFTypeID CFGetTypeID(const CFType* object) {
    return object->typeID();
}

bool CFEqual(const CFType* a, const CFType* b) {
    if (a == b)
        return true;
    return a && b && a->typeID() == b->typeID() && a->isEqual(*b);
}

CFHashCode CFHash(const CFType* object) {
    return object->hash();
}
