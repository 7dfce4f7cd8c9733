#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <algorithm>
#include <type_traits>

namespace {

/// The characters of Mac OS Roman's bytes 0x80 to 0xFF; the lower half is ASCII. Source: the
/// mapping table ROMAN.TXT of the Unicode Consortium, with the euro sign at 0xDB and the corporate
/// logo at 0xF0 in the private use area.
constexpr std::u16string_view kMacRomanUpperHalf =
    u"\u00C4\u00C5\u00C7\u00C9\u00D1\u00D6\u00DC\u00E1"
    u"\u00E0\u00E2\u00E4\u00E3\u00E5\u00E7\u00E9\u00E8"
    u"\u00EA\u00EB\u00ED\u00EC\u00EE\u00EF\u00F1\u00F3"
    u"\u00F2\u00F4\u00F6\u00F5\u00FA\u00F9\u00FB\u00FC"
    u"\u2020\u00B0\u00A2\u00A3\u00A7\u2022\u00B6\u00DF"
    u"\u00AE\u00A9\u2122\u00B4\u00A8\u2260\u00C6\u00D8"
    u"\u221E\u00B1\u2264\u2265\u00A5\u00B5\u2202\u2211"
    u"\u220F\u03C0\u222B\u00AA\u00BA\u03A9\u00E6\u00F8"
    u"\u00BF\u00A1\u00AC\u221A\u0192\u2248\u2206\u00AB"
    u"\u00BB\u2026\u00A0\u00C0\u00C3\u00D5\u0152\u0153"
    u"\u2013\u2014\u201C\u201D\u2018\u2019\u00F7\u25CA"
    u"\u00FF\u0178\u2044\u20AC\u2039\u203A\uFB01\uFB02"
    u"\u2021\u00B7\u201A\u201E\u2030\u00C2\u00CA\u00C1"
    u"\u00CB\u00C8\u00CD\u00CE\u00CF\u00CC\u00D3\u00D4"
    u"\uF8FF\u00D2\u00DA\u00DB\u00D9\u0131\u02C6\u02DC"
    u"\u00AF\u02D8\u02D9\u02DA\u00B8\u02DD\u02DB\u02C7";
static_assert(kMacRomanUpperHalf.size() == 128);

constexpr unsigned char byteAt(std::string_view bytes, std::size_t index) {
    return static_cast<unsigned char>(bytes[index]);
}

void appendUTF16(std::u16string& text, char32_t c) {
    if (c < 0x10000) {
        text += static_cast<char16_t>(c);
        return;
    }
    text += static_cast<char16_t>(0xD800 + ((c - 0x10000) >> 10));
    text += static_cast<char16_t>(0xDC00 + ((c - 0x10000) & 0x3FF));
}

/// Moves the run of ASCII characters at the front of `from` to the end of `to`: nearly all text
/// here is that, and needs no look at each character's length.
template <class From, class To>
void takeASCII(From& from, To& to) {
    const auto end = std::find_if(from.begin(), from.end(), [](auto c) {
        return static_cast<std::make_unsigned_t<decltype(c)>>(c) >= 0x80;
    });
    to.append(from.begin(), end);
    from.remove_prefix(static_cast<std::size_t>(end - from.begin()));
}

std::optional<std::u16string> decodeUTF8(std::string_view bytes) {
    std::u16string text;
    text.reserve(bytes.size());
    for (takeASCII(bytes, text); !bytes.empty(); takeASCII(bytes, text)) {
        const char32_t c = takeUTF8(bytes);
        if (c == kInvalidCharacter)
            return std::nullopt;
        appendUTF16(text, c);
    }
    return text;
}

std::optional<std::string> encodeUTF8(std::u16string_view text) {
    std::string bytes;
    bytes.reserve(text.size());
    for (takeASCII(text, bytes); !text.empty(); takeASCII(text, bytes)) {
        const char32_t c = takeUTF16(text);
        if (c == kInvalidCharacter)
            return std::nullopt;
        appendUTF8(bytes, c);
    }
    return bytes;
}

/// ASCII when `upperHalf` is empty.
std::optional<std::u16string> decodeBytes(std::string_view bytes, std::u16string_view upperHalf) {
    std::u16string text;
    text.reserve(bytes.size());
    for (const char c : bytes) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte >= 0x80 && upperHalf.empty())
            return std::nullopt;
        text += byte < 0x80 ? static_cast<char16_t>(byte) : upperHalf[byte - 0x80u];
    }
    return text;
}

std::optional<std::string> encodeBytes(std::u16string_view text, std::u16string_view upperHalf) {
    std::string bytes;
    bytes.reserve(text.size());
    for (const char16_t c : text) {
        const std::size_t index = c < 0x80 ? 0 : upperHalf.find(c);
        if (index == std::u16string_view::npos)
            return std::nullopt;
        bytes += static_cast<char>(c < 0x80 ? c : 0x80 + index);
    }
    return bytes;
}

} // namespace

char32_t takeUTF8(std::string_view& bytes) {
    const unsigned char first = byteAt(bytes, 0);
    if (first < 0x80) {
        bytes.remove_prefix(1);
        return first;
    }
    const std::size_t length = first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 0 || bytes.size() < length)
        return kInvalidCharacter;
    char32_t c = first & (0x7Fu >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byteAt(bytes, i) & 0xC0) != 0x80)
            return kInvalidCharacter;
        c = (c << 6) | (byteAt(bytes, i) & 0x3Fu);
    }
    const bool overlong = (length == 3 && c < 0x800) || (length == 4 && c < 0x10000);
    if (overlong || (c >= 0xD800 && c < 0xE000) || c > 0x10FFFF)
        return kInvalidCharacter;
    bytes.remove_prefix(length);
    return c;
}

char32_t takeUTF16(std::u16string_view& units) {
    const char32_t first = units[0];
    const bool high = first >= 0xD800 && first < 0xDC00;
    if (high && units.size() > 1 && units[1] >= 0xDC00 && units[1] < 0xE000) {
        const char32_t c = 0x10000 + ((first - 0xD800) << 10) + (units[1] - 0xDC00u);
        units.remove_prefix(2);
        return c;
    }
    units.remove_prefix(1);
    return first >= 0xD800 && first < 0xE000 ? kInvalidCharacter : first;
}

void appendUTF8(std::string& bytes, char32_t c) {
    if (c < 0x80) {
        bytes += static_cast<char>(c);
        return;
    }
    const int more = c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
    bytes += static_cast<char>((0xFF00u >> (more + 1) & 0xFFu) | c >> (6 * more));
    for (int i = more - 1; i >= 0; --i)
        bytes += static_cast<char>(0x80u | (c >> (6 * i) & 0x3Fu));
}

std::optional<std::u16string> decodeText(std::string_view bytes, CFStringEncoding encoding) {
    switch (encoding) {
    case kCFStringEncodingMacRoman:
        return decodeBytes(bytes, kMacRomanUpperHalf);
    case kCFStringEncodingASCII:
        return decodeBytes(bytes, {});
    case kCFStringEncodingUTF8:
        return decodeUTF8(bytes);
    }
    return std::nullopt;
}

std::optional<std::string> encodeText(std::u16string_view text, CFStringEncoding encoding) {
    switch (encoding) {
    case kCFStringEncodingMacRoman:
        return encodeBytes(text, kMacRomanUpperHalf);
    case kCFStringEncodingASCII:
        return encodeBytes(text, {});
    case kCFStringEncodingUTF8:
        return encodeUTF8(text);
    }
    return std::nullopt;
}
