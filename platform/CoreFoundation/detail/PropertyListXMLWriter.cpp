// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/CarriedValue.h"
#include "platform/CoreFoundation/detail/PropertyListXML.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <QByteArray>

#include <charconv>
#include <cmath>
#include <iterator>

namespace {

constexpr std::string_view kStart = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                    "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                    "<plist version=\"1.0\">\n";
constexpr std::string_view kEnd = "</plist>\n";

std::string escaped(const std::string& text) {
    if (text.find_first_of("&<>\r") == std::string::npos)
        return text;
    std::string result;
    for (const char c : text) {
        switch (c) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '\r': // a parser reads a plain one as a line feed
            result += "&#13;";
            break;
        default:
            result += c;
        }
    }
    return result;
}

class Writer {
public:
    explicit Writer(const CFType* root) : document_(kStart) {
        write(root, 0);
        document_ += kEnd;
    }

    std::string take() { return isSound_ ? std::move(document_) : std::string(); }

private:
    /// Writes a line, indented `depth` levels.
    void line(std::size_t depth, std::string_view text) {
        document_.append(depth, '\t').append(text) += '\n';
    }

    void element(std::size_t depth, std::string_view name, std::string_view content) {
        document_.append(depth, '\t').append("<").append(name).append(">");
        document_.append(content).append("</").append(name).append(">\n");
    }

    void text(std::size_t depth, std::string_view name, std::u16string_view text) {
        isSound_ = isSound_ && isXMLText(text);
        element(depth, name, escaped(encodeText(text, kCFStringEncodingUTF8).value_or("")));
    }

    void number(std::size_t depth, const CFNumber& number) {
        if (!number.isFloat())
            return element(depth, "integer", std::to_string(number.integerValue()));
        const double value = number.doubleValue();
        if (std::isnan(value) || std::isinf(value))
            return element(depth, "real",
                           std::isnan(value) ? "nan"
                           : value < 0       ? "-infinity"
                                             : "+infinity");
        char digits[32];
        const auto result = std::to_chars(std::begin(digits), std::end(digits), value);
        element(depth, "real", {digits, result.ptr});
    }

    template <class Items, class WriteItem>
    void container(std::size_t depth, const std::string& name, const Items& items,
                   WriteItem writeItem) {
        isSound_ = isSound_ && depth < kPropertyListMaxDepth;
        if (!isSound_ || items.empty())
            return line(depth, '<' + name + "/>");
        line(depth, '<' + name + '>');
        for (const auto& item : items)
            writeItem(item);
        line(depth, "</" + name + '>');
    }

    void array(std::size_t depth, const CFArray& array) {
        container(depth, "array", array.items(),
                  [&](const auto& item) { write(item.get(), depth + 1); });
    }

    void dictionary(std::size_t depth, const CFDictionary& dictionary) {
        container(depth, "dict", dictionary.items(), [&](const auto& item) {
            text(depth + 1, "key", item.first);
            write(item.second.get(), depth + 1);
        });
    }

    void data(std::size_t depth, const CFData& data) {
        const auto* bytes = reinterpret_cast<const char*>(data.bytes().data());
        const auto raw = QByteArray::fromRawData(bytes, std::ssize(data.bytes()));
        element(depth, "data", raw.toBase64().toStdString());
    }

    void write(const CFType* value, std::size_t depth) {
        switch (value ? value->typeID() : CFTypeID::URL) {
        case CFTypeID::String:
            return text(depth, "string", static_cast<const CFString*>(value)->text());
        case CFTypeID::Number:
            return number(depth, *static_cast<const CFNumber*>(value));
        case CFTypeID::Bool:
            return line(depth,
                        static_cast<const CFBoolean*>(value)->value() ? "<true/>" : "<false/>");
        case CFTypeID::Data:
            return data(depth, *static_cast<const CFData*>(value));
        case CFTypeID::Carried: {
            const auto* carried = static_cast<const CarriedValue*>(value);
            return element(depth, carried->element(), carried->text());
        }
        case CFTypeID::Array:
            return array(depth, *static_cast<const CFArray*>(value));
        case CFTypeID::Dictionary:
            return dictionary(depth, *static_cast<const CFDictionary*>(value));
        default:
            isSound_ = false;
        }
    }

    std::string document_;
    bool isSound_ = true;
};

} // namespace

std::string writeXMLPropertyList(const CFType* value) {
    return Writer(value).take();
}
