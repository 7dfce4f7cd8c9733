// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/CFDictionary.h"

#include <functional>

/// The property list in the file. Null when it can't be read or its root has another type.
CFRef<const CFType> propUtilReadFile(const CFURL* url, CFTypeID expectedType);

/// The same for the bundle's resource `name`.plist. Null also without a bundle or resource.
CFRef<const CFType> propUtilReadResourceFile(const CFBundle* bundle, const CFString* name,
                                             CFTypeID expectedType);

/// The key's value if it is a string, else null. Borrowed from the dictionary.
const CFString* propUtilGetDictString(const CFDictionary* dictionary, const CFString* key);

/// The same with a reference for the caller.
CFRef<const CFString> propUtilGetRetainedDictString(const CFDictionary* dictionary,
                                                    const CFString* key);

/// Calls the function for each item in order, with its index from 0.
void propUtilForEachArrayItemDo(
    const CFArray* array, const std::function<void(const CFType* item, CFIndex index)>& function);
