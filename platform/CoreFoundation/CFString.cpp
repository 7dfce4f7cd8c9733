// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFString.h"

#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <QStringView>

#include <cstring>
#include <map>

bool CFString::isEqual(const CFType& other) const {
    return text_ == static_cast<const CFString&>(other).text_;
}

CFHashCode CFString::hash() const {
    return std::hash<std::u16string>()(text_);
}

void CFMutableString::append(std::u16string_view more) {
    if (maxLength_ > 0)
        more = more.substr(0, static_cast<std::size_t>(maxLength_) - text_.size());
    text_ += more;
}

const CFString* CFSTR(const char* ascii) {
    using Strings = std::map<std::string, CFRef<const CFString>, std::less<>>;
    static Strings& strings = *new Strings; // outlives static objects that hold constants
    auto found = strings.find(std::string_view(ascii));
    if (found == strings.end())
        found =
            strings.emplace(ascii, CFStringCreateWithCString(ascii, kCFStringEncodingASCII)).first;
    return found->second.get();
}

CFRef<CFString> CFStringCreateWithCString(const char* text, CFStringEncoding encoding) {
    auto decoded = text ? decodeText(text, encoding) : std::nullopt;
    return decoded ? CFRef<CFString>::adopt(new CFString(std::move(*decoded))) : nullptr;
}

CFRef<CFString> createFromUTF8(std::string_view text) {
    auto decoded = decodeText(text, kCFStringEncodingUTF8);
    return decoded ? CFRef<CFString>::adopt(new CFString(std::move(*decoded))) : nullptr;
}

CFRef<CFMutableString> CFStringCreateMutable(CFIndex maxLength) {
    return CFRef<CFMutableString>::adopt(new CFMutableString(maxLength));
}

void CFStringAppend(CFMutableString* string, const CFString* more) {
    string->append(more->text());
}

void CFStringAppendCharacters(CFMutableString* string, const UniChar* characters, CFIndex count) {
    string->append({characters, static_cast<std::size_t>(count)});
}

CFComparisonResult CFStringCompare(const CFString* a, const CFString* b,
                                   CFStringCompareFlags flags) {
    const auto view = [](const CFString* string) {
        const std::u16string& text = string->text();
        return QStringView(text.data(), static_cast<qsizetype>(text.size()));
    };
    const int order = view(a).compare(
        view(b), flags & kCFCompareCaseInsensitive ? Qt::CaseInsensitive : Qt::CaseSensitive);
    return order < 0 ? kCFCompareLessThan : order > 0 ? kCFCompareGreaterThan : kCFCompareEqualTo;
}

bool CFStringGetCString(const CFString* string, char* buffer, CFIndex bufferSize,
                        CFStringEncoding encoding) {
    const auto encoded = encodeText(string->text(), encoding);
    if (!encoded || static_cast<CFIndex>(encoded->size()) >= bufferSize)
        return false;
    std::memcpy(buffer, encoded->c_str(), encoded->size() + 1);
    return true;
}

CFStringEncoding CFStringGetSystemEncoding() {
    return kCFStringEncodingUTF8;
}

std::string toUTF8(const CFString* string) {
    return encodeLossyUTF8(string->text());
}
