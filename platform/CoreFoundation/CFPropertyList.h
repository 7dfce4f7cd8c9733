// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFData.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFNumber.h"

#include <string>

/// The largest property list that is read or written, in bytes, and the deepest nesting of
/// containers.
constexpr std::size_t kPropertyListMaxSize = 1u << 20;
constexpr std::size_t kPropertyListMaxDepth = 128;

/// Reads a property list, XML or binary. Null when the data isn't exactly one whole, valid property
/// list, or exceeds the limits above. A date, or a number out of range, is carried for the next
/// writing, but is no CFNumber.
CFRef<const CFType> CFPropertyListCreateFromXMLData(const CFData* data);

/// The list as an XML document, in memory. Empty when it holds something that a property list
/// can't: another type, text with control characters or unpaired surrogates, too deep nesting; or
/// when the document would be larger than the limit.
std::string propertyListToXML(const CFType* propertyList);
