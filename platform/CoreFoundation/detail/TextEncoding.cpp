// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <QStringDecoder>
#include <QStringEncoder>

#include <algorithm>

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

std::optional<std::u16string> decodeUTF8(std::string_view bytes) {
    using Flag = QStringDecoder::Flag;
    QStringDecoder decoder(QStringDecoder::Utf8, Flag::Stateless | Flag::ConvertInitialBom);
    const QString text = decoder(QByteArrayView(bytes));
    if (decoder.hasError())
        return std::nullopt;
    return text.toStdU16String();
}

/// An unpaired surrogate becomes U+FFFD and sets `isValid` to false.
std::string encodeUTF8(std::u16string_view text, bool& isValid) {
    isValid = std::ranges::all_of(text, [](char16_t c) { return c < 0x80; });
    if (isValid) // nearly all texts, which Qt's encoder would copy twice
        return {text.begin(), text.end()};
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QByteArray bytes = encoder(QStringView(text));
    isValid = !encoder.hasError();
    return bytes.toStdString();
}

/// An empty `upperHalf` means ASCII.
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

bool isXMLText(std::u16string_view text) {
    if (std::ranges::all_of(text, [](char16_t c) { return c >= 0x20 && c < 0xD800; }))
        return true; // nearly always
    return QStringView(text).isValidUtf16() && std::ranges::all_of(text, [](char16_t c) {
               return (c >= 0x20 && c < 0xFFFE) || c == '\t' || c == '\n' || c == '\r';
           });
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
    case kCFStringEncodingUTF8: {
        bool isValid = false;
        std::string bytes = encodeUTF8(text, isValid);
        return isValid ? std::optional(std::move(bytes)) : std::nullopt;
    }
    }
    return std::nullopt;
}

std::string encodeLossyUTF8(std::u16string_view text) {
    bool isValid = false;
    return encodeUTF8(text, isValid);
}
