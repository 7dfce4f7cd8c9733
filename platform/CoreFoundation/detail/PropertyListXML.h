// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <string>
#include <string_view>

// Property lists in XML. CFPropertyList.h has their content and limits.

/// Reads any encoding that the document declares and Qt knows: UTF-8, UTF-16, Latin-1. Null unless
/// the bytes are exactly one property list. A document type may have an internal subset.
CFRef<const CFType> readXMLPropertyList(std::string_view bytes);

/// In UTF-8. Empty when the value is null or holds something that a property list can't.
std::string writeXMLPropertyList(const CFType* value);
