// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <optional>

/// The text of `bytes`. None when they aren't valid in the encoding.
std::optional<std::u16string> decodeText(std::string_view bytes, CFStringEncoding encoding);

/// The bytes of `text`. None when it has a character that the encoding lacks. An unpaired surrogate
/// is one in every encoding.
std::optional<std::string> encodeText(std::u16string_view text, CFStringEncoding encoding);

/// The UTF-8 bytes of `text`. An unpaired surrogate becomes U+FFFD.
std::string encodeLossyUTF8(std::u16string_view text);

/// Whether an XML document can hold the text: no control characters except tab and line ends, no
/// unpaired surrogates, no U+FFFE or U+FFFF.
bool isXMLText(std::u16string_view text);
