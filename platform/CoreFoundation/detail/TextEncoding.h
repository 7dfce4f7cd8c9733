// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <optional>

/// The text of `bytes`, or none when they aren't valid in the encoding.
std::optional<std::u16string> decodeText(std::string_view bytes, CFStringEncoding encoding);

/// The bytes of `text`, or none when it has a character that the encoding lacks; an unpaired
/// surrogate is such a character in every encoding.
std::optional<std::string> encodeText(std::u16string_view text, CFStringEncoding encoding);

/// The UTF-8 bytes of `text`, with U+FFFD for an unpaired surrogate.
std::string encodeLossyUTF8(std::u16string_view text);

/// Whether an XML document can hold the text: no control characters but tab and line ends, no
/// unpaired surrogates, neither U+FFFE nor U+FFFF.
bool isXMLText(std::u16string_view text);
