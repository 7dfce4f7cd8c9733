#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <optional>

/// The text of `bytes`, or none when they aren't valid in the encoding.
std::optional<std::u16string> decodeText(std::string_view bytes, CFStringEncoding encoding);

/// The bytes of `text`, or none when it has a character that the encoding lacks; an unpaired
/// surrogate is such a character in every encoding.
std::optional<std::string> encodeText(std::u16string_view text, CFStringEncoding encoding);

constexpr char32_t kInvalidCharacter = 0xFFFFFFFF;

/// Takes one character off the front of `bytes`, which isn't empty. kInvalidCharacter when what
/// stands there isn't valid UTF-8 (overlong forms, surrogates and values above U+10FFFF included).
char32_t takeUTF8(std::string_view& bytes);

/// The same for UTF-16; kInvalidCharacter is an unpaired surrogate, which is taken off.
char32_t takeUTF16(std::u16string_view& units);

/// Whether an XML document can hold the character.
constexpr bool isXMLCharacter(char32_t c) {
    return c == '\t' || c == '\n' || c == '\r' || (c >= 0x20 && c < 0xD800) ||
           (c >= 0xE000 && c <= 0x10FFFF && c != 0xFFFE && c != 0xFFFF);
}

void appendUTF8(std::string& bytes, char32_t c);
