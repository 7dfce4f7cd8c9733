// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/StoredValues.h"

#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <charconv>
#include <strings.h>

namespace {

/// The text of an ASCII string. Empty for anything else.
std::string asciiText(const CFType* value) {
    const auto* string = dynamicCFCast<CFString>(value);
    return string ? encodeText(string->text(), kCFStringEncodingASCII).value_or("") : "";
}

} // namespace

std::optional<bool> booleanFromValue(const CFType* value) {
    if (const auto* boolean = dynamicCFCast<CFBoolean>(value))
        return boolean->value();
    if (const auto* number = dynamicCFCast<CFNumber>(value))
        return number->doubleValue() != 0;
    const std::string text = asciiText(value);
    for (const char* yes : {"yes", "true"}) {
        if (strcasecmp(text.c_str(), yes) == 0)
            return true;
    }
    for (const char* no : {"no", "false"}) {
        if (strcasecmp(text.c_str(), no) == 0)
            return false;
    }
    return std::nullopt;
}

std::optional<CFIndex> integerFromValue(const CFType* value) {
    if (const auto* number = dynamicCFCast<CFNumber>(value))
        return number->integerValue();
    const std::string text = asciiText(value);
    const bool plus = text.starts_with('+') && !text.starts_with("+-");
    const char* const last = text.data() + text.size();
    CFIndex integer = 0;
    const auto [end, error] = std::from_chars(text.data() + (plus ? 1 : 0), last, integer);
    return error == std::errc() && end == last ? std::optional(integer) : std::nullopt;
}
