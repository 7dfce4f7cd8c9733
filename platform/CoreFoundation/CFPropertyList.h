// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFData.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFNumber.h"

#include <string>

/// Limits of a property list that is read or written: its bytes, and the depth of its containers.
constexpr std::size_t kPropertyListMaxSize = 1u << 20;
constexpr std::size_t kPropertyListMaxDepth = 128;

/// Reads a property list, XML or binary. Null unless the data is exactly one valid property list
/// within the limits. A date, or a number out of range, is kept for the next write, but is no
/// CFNumber.
CFRef<const CFType> CFPropertyListCreateFromXMLData(const CFData* data);

/// The list as an XML document. Empty when the document would be larger than the limit, or the list
/// holds what a property list can't: another type, text with control characters or unpaired
/// surrogates, too deep nesting.
std::string propertyListToXML(const CFType* propertyList);
