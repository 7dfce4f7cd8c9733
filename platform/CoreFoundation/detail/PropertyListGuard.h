#pragma once

#include <string_view>

enum class CFPropertyListForm { Invalid, XML, Binary };

/// Checks data from outside before libplist sees it: the parser overruns its stack on deep nesting,
/// and silently takes a second root, trailing garbage, invalid UTF-8, a key without a value and
/// numbers that aren't. One pass, without recursion. Invalid unless the bytes are exactly one whole
/// property list within the limits of CFPropertyList.h; `bytes` loses a byte-order mark in front,
/// which the parser doesn't know.
///
/// XML: UTF-8, a <plist> element with one value in it. The value of an integer is a signed 64-bit
/// one, decimal or hexadecimal with 0x. Document types with definitions of their own are refused.
/// Binary: version "bplist00". The limits count objects that are used twice as if they were written
/// twice, so that a small file can't grow large in memory.
CFPropertyListForm CFPropertyListCheck(std::string_view& bytes);
