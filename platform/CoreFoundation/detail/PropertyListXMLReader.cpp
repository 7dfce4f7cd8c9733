// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/CarriedValue.h"
#include "platform/CoreFoundation/detail/PropertyListXML.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <QXmlStreamReader>

#include <algorithm>
#include <charconv>

namespace {

/// The most characters that an entity of the document may stand for.
constexpr int kLongestEntity = 64;

/// Of one tag. Ours has one.
constexpr std::size_t kMostAttributes = 1000;

bool isBlank(char c) {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n';
}

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::string_view trimmed(std::string_view text) {
    while (!text.empty() && isBlank(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

// Values of elements without children, from their texts. Null when the text doesn't fit the
// element. A number or date out of range is carried.

template <class Value, class... Base>
CFRef<const CFType> numberOf(const char* element, std::string_view text, std::string_view digits,
                             Base... base) {
    Value value{};
    const char* const last = digits.data() + digits.size();
    const auto [end, error] = std::from_chars(digits.data(), last, value, base...);
    if (end != last || error == std::errc::invalid_argument)
        return nullptr;
    if (error != std::errc())
        return CFRef<CarriedValue>::adopt(new CarriedValue(element, text));
    return CFRef<CFNumber>::adopt(new CFNumber(value));
}

/// Decimal, or hexadecimal after 0x.
CFRef<const CFType> integerOf(std::string_view text) {
    std::string_view digits = text;
    if (digits.starts_with('+'))
        digits.remove_prefix(1);
    if (!digits.starts_with("0x") && !digits.starts_with("0X"))
        return text.starts_with("+-") ? nullptr : numberOf<std::int64_t>("integer", text, digits);
    digits.remove_prefix(2);
    return digits.starts_with('-') ? nullptr : numberOf<std::int64_t>("integer", text, digits, 16);
}

CFRef<const CFType> realOf(std::string_view text) {
    const bool plus = text.starts_with('+') && !text.starts_with("+-");
    return numberOf<double>("real", text, text.substr(plus ? 1 : 0));
}

CFRef<const CFType> dateOf(std::string_view text) {
    constexpr std::string_view pattern = "dddd-dd-ddTdd:dd:ddZ";
    const bool matches =
        std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(),
                   [](char c, char wanted) { return wanted == 'd' ? isDigit(c) : c == wanted; });
    return matches ? CFRef<CarriedValue>::adopt(new CarriedValue("date", text)) : nullptr;
}

CFRef<const CFType> dataOf(std::string_view text) {
    std::string digits(text);
    std::erase_if(digits, isBlank);
    const auto result = QByteArray::fromBase64Encoding(QByteArray::fromStdString(digits),
                                                       QByteArray::AbortOnBase64DecodingErrors);
    if (!result)
        return nullptr;
    return CFRef<CFData>::adopt(
        new CFData(std::vector<UInt8>(result.decoded.begin(), result.decoded.end())));
}

template <bool value>
CFRef<const CFType> booleanOf(std::string_view text) {
    return CFRef<const CFBoolean>::retain(!text.empty() ? nullptr
                                          : value       ? kCFBooleanTrue
                                                        : kCFBooleanFalse);
}

constexpr struct {
    std::u16string_view name;
    CFRef<const CFType> (*read)(std::string_view text); ///< without surrounding blanks
} kElements[] = {{u"integer", integerOf},      {u"real", realOf}, {u"true", booleanOf<true>},
                 {u"false", booleanOf<false>}, {u"date", dateOf}, {u"data", dataOf}};

CFRef<const CFType> valueOf(std::u16string_view name, std::u16string text) {
    if (name == u"string")
        return CFRef<CFString>::adopt(new CFString(std::move(text)));
    const auto* element =
        std::ranges::find(kElements, name, [](const auto& row) { return row.name; });
    const auto ascii = encodeText(text, kCFStringEncodingASCII);
    return ascii && element != std::end(kElements) ? element->read(trimmed(*ascii)) : nullptr;
}

/// Whether an entity's text stands outside of the document. It is never fetched.
bool isOutside(const QXmlStreamEntityDeclaration& entity) {
    return !entity.systemId().isEmpty() || !entity.publicId().isEmpty();
}

/// Whether a tag has more attributes than the parser can compare with one another in a moment. Its
/// end is the first '>' outside of quotes; no '<' is inside. In other encodings than those with
/// ASCII's bytes all signs of the document count.
bool hasTooManyAttributes(std::string_view bytes) {
    const bool isWide = bytes.substr(0, 4).find('\0') != bytes.npos;
    std::size_t attributes = 0;
    bool isInTag = true;
    char quote = 0;
    for (const char c : bytes) {
        if (c == '<' && !isWide) {
            attributes = 0;
            isInTag = true;
            quote = 0;
        } else if (quote) {
            quote = c == quote ? 0 : quote;
        } else if (isInTag && (c == '"' || c == '\'')) {
            quote = c;
        } else if (c == '>' && !isWide) {
            isInTag = false;
        } else if (c == '=' && isInTag && ++attributes > kMostAttributes) {
            return true;
        }
    }
    return false;
}

std::u16string_view view(QStringView text) {
    return {text.utf16(), static_cast<std::size_t>(text.size())};
}

/// Builds objects while the parser walks through the elements. It stops for good at the first
/// fault.
class Reader {
public:
    explicit Reader(std::string_view bytes)
        : xml_(QByteArray::fromRawData(bytes.data(), std::ssize(bytes))) {
        xml_.setNamespaceProcessing(false);
        xml_.setEntityExpansionLimit(kLongestEntity);
    }

    CFRef<const CFType> read() {
        if (!nextChild() || xml_.name() != u"plist" || !nextChild())
            return nullptr;
        CFRef<const CFType> root = readValue(0);
        if (!root || nextChild())
            return nullptr;
        while (!xml_.atEnd())
            xml_.readNext();
        return failed_ || xml_.hasError() ? nullptr : root;
    }

private:
    /// Moves to the next child of the open element. False at the element's end, or when anything
    /// but tags, blanks and comments follows.
    bool nextChild() {
        while (!failed_) {
            switch (xml_.readNext()) {
            case QXmlStreamReader::StartElement:
                return true;
            case QXmlStreamReader::EndElement:
                return false;
            case QXmlStreamReader::Characters:
                failed_ = !xml_.isWhitespace();
                break;
            case QXmlStreamReader::DTD:
                failed_ = std::ranges::any_of(xml_.entityDeclarations(), isOutside);
                break;
            case QXmlStreamReader::StartDocument:
            case QXmlStreamReader::Comment:
            case QXmlStreamReader::ProcessingInstruction:
                break;
            default:
                failed_ = true;
            }
        }
        return false;
    }

    /// The text of the open element, up to its end.
    std::optional<std::u16string> readText() {
        std::u16string text;
        while (xml_.readNext() != QXmlStreamReader::EndElement) {
            if (xml_.isCharacters())
                text += view(xml_.text());
            else if (!xml_.isComment())
                return std::nullopt;
            if (text.size() > kPropertyListMaxSize)
                return std::nullopt;
        }
        return isXMLText(text) ? std::optional(std::move(text)) : std::nullopt;
    }

    CFRef<const CFType> readValue(std::size_t depth) {
        const std::u16string name(view(xml_.name()));
        if (name == u"dict" || name == u"array") {
            if (depth == kPropertyListMaxDepth)
                return nullptr;
            return name == u"dict" ? readDictionary(depth + 1) : readArray(depth + 1);
        }
        auto text = readText();
        return text ? valueOf(name, std::move(*text)) : nullptr;
    }

    CFRef<const CFType> readArray(std::size_t depth) {
        CFArray::Items items;
        while (nextChild()) {
            items.push_back(readValue(depth));
            if (!items.back())
                return nullptr;
        }
        return CFRef<CFArray>::adopt(new CFArray(std::move(items)));
    }

    CFRef<const CFType> readDictionary(std::size_t depth) {
        CFDictionary::Items items;
        while (nextChild()) {
            const bool isKey = xml_.name() == u"key";
            auto key = readText();
            auto value = isKey && key && nextChild() ? readValue(depth) : nullptr;
            if (!value)
                return nullptr;
            // Keys are mostly sorted, so the end is the best hint.
            items.insert_or_assign(items.end(), std::move(*key), std::move(value));
        }
        return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
    }

    QXmlStreamReader xml_;
    bool failed_ = false;
};

} // namespace

CFRef<const CFType> readXMLPropertyList(std::string_view bytes) {
    return hasTooManyAttributes(bytes) ? nullptr : Reader(bytes).read();
}
