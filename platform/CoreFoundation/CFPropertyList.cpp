#include "platform/CoreFoundation/CFPropertyList.h"

#include "platform/CoreFoundation/detail/CFDate.h"
#include "platform/CoreFoundation/detail/PropertyListGuard.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <algorithm>
#include <clocale>
#include <cstdlib>
#include <memory>
#include <optional>
#include <plist/plist.h>

namespace {

template <auto Free>
struct Freed {
    template <class T>
    void operator()(T* pointer) const {
        Free(pointer);
    }
};

using PlistNode = std::unique_ptr<void, Freed<plist_free>>;
using CText = std::unique_ptr<char, Freed<std::free>>;

/// libplist reads and writes numbers by the thread's locale; a property list has a decimal point in
/// every country.
class NumericCLocale {
public:
    NumericCLocale() : before_(uselocale(cLocale())) {}

    ~NumericCLocale() { uselocale(before_); }

    NumericCLocale(const NumericCLocale&) = delete;
    NumericCLocale& operator=(const NumericCLocale&) = delete;

private:
    static locale_t cLocale() {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t before_;
};

// From libplist's nodes, which the guard has found sound, to objects.

CFRef<const CFType> makeValue(plist_t node);

CFRef<const CFType> makeString(plist_t node) {
    std::uint64_t length = 0;
    const char* text = plist_get_string_ptr(node, &length);
    return CFStringCreateWithUTF8({text, length});
}

CFRef<const CFType> makeNumber(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uint_val(node, &value);
    return CFRef<CFNumber>::adopt(new CFNumber(static_cast<std::int64_t>(value)));
}

CFRef<const CFType> makeReal(plist_t node) {
    double value = 0;
    plist_get_real_val(node, &value);
    return CFRef<CFNumber>::adopt(new CFNumber(value));
}

CFRef<const CFType> makeBoolean(plist_t node) {
    std::uint8_t value = 0;
    plist_get_bool_val(node, &value);
    return CFRef<const CFBoolean>::retain(value ? kCFBooleanTrue : kCFBooleanFalse);
}

CFRef<const CFType> makeData(plist_t node) {
    std::uint64_t length = 0;
    const char* bytes = plist_get_data_ptr(node, &length);
    return CFDataCreate(reinterpret_cast<const UInt8*>(bytes), static_cast<CFIndex>(length));
}

CFRef<const CFType> makeDate(plist_t node) {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return CFRef<CFDate>::adopt(new CFDate(seconds));
}

/// A reference in a keyed archive, which XML spells as a dictionary.
CFRef<const CFType> makeUID(plist_t node) {
    std::uint64_t value = 0;
    plist_get_uid_val(node, &value);
    CFDictionary::Items items;
    items.emplace(u"CF$UID",
                  CFRef<CFNumber>::adopt(new CFNumber(static_cast<std::int64_t>(value))));
    return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
}

CFRef<const CFType> makeArray(plist_t node) {
    void* walk = nullptr;
    plist_array_new_iter(node, &walk);
    const CText iterator(static_cast<char*>(walk));
    CFArray::Items items;
    plist_t item = nullptr;
    for (plist_array_next_item(node, walk, &item); item; plist_array_next_item(node, walk, &item)) {
        items.push_back(makeValue(item));
        if (!items.back())
            return nullptr;
    }
    return CFRef<CFArray>::adopt(new CFArray(std::move(items)));
}

CFRef<const CFType> makeDictionary(plist_t node) {
    void* walk = nullptr;
    plist_dict_new_iter(node, &walk);
    const CText iterator(static_cast<char*>(walk));
    CFDictionary::Items items;
    for (;;) {
        char* rawKey = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, walk, &rawKey, &item);
        const CText key(rawKey);
        if (!item)
            return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
        auto name = decodeText(key.get(), kCFStringEncodingUTF8);
        auto value = makeValue(item);
        if (!name || !value)
            return nullptr;
        // Keys mostly come in their order, which makes the end the right hint.
        items.insert_or_assign(items.end(), std::move(*name), std::move(value));
    }
}

CFRef<const CFType> makeValue(plist_t node) {
    switch (plist_get_node_type(node)) {
    case PLIST_STRING:
        return makeString(node);
    case PLIST_UINT:
        return makeNumber(node);
    case PLIST_REAL:
        return makeReal(node);
    case PLIST_BOOLEAN:
        return makeBoolean(node);
    case PLIST_DATA:
        return makeData(node);
    case PLIST_DATE:
        return makeDate(node);
    case PLIST_UID:
        return makeUID(node);
    case PLIST_ARRAY:
        return makeArray(node);
    case PLIST_DICT:
        return makeDictionary(node);
    default:
        return nullptr;
    }
}

// From objects to libplist's nodes. Null for what a property list can't hold.

bool isWritable(std::u16string_view text) {
    for (;;) {
        const auto plain = [](char16_t c) { return c >= 0x20 && c < 0x80; };
        const auto special = std::find_if_not(text.begin(), text.end(), plain);
        text.remove_prefix(static_cast<std::size_t>(special - text.begin()));
        if (text.empty())
            return true;
        if (!isXMLCharacter(takeUTF16(text)))
            return false;
    }
}

std::optional<std::string> writableText(std::u16string_view text) {
    return isWritable(text) ? encodeText(text, kCFStringEncodingUTF8) : std::nullopt;
}

/// `depth` is how many containers enclose the value.
bool isTooDeep(const CFType& value, std::size_t depth) {
    const CFTypeID type = value.typeID();
    const bool container = type == CFTypeID::Array || type == CFTypeID::Dictionary;
    return container && depth >= kCFPropertyListMaxDepth;
}

PlistNode makeNode(const CFType* value, std::size_t depth);

PlistNode makeArrayNode(const CFArray& array, std::size_t depth) {
    PlistNode node(plist_new_array());
    for (const auto& item : array.items()) {
        PlistNode child = makeNode(item.get(), depth);
        if (!child)
            return nullptr;
        plist_array_append_item(node.get(), child.release());
    }
    return node;
}

PlistNode makeDictionaryNode(const CFDictionary& dictionary, std::size_t depth) {
    PlistNode node(plist_new_dict());
    for (const auto& [key, item] : dictionary.items()) {
        const auto name = writableText(key);
        PlistNode child = makeNode(item.get(), depth);
        if (!name || !child)
            return nullptr;
        plist_dict_set_item(node.get(), name->c_str(), child.release());
    }
    return node;
}

PlistNode makeNumberNode(const CFNumber& number) {
    return PlistNode(number.isFloat()
                         ? plist_new_real(number.doubleValue())
                         : plist_new_uint(static_cast<std::uint64_t>(number.integerValue())));
}

PlistNode makeStringNode(const CFString& string) {
    const auto text = writableText(string.text());
    return PlistNode(text ? plist_new_string(text->c_str()) : nullptr);
}

PlistNode makeDataNode(const CFData& data) {
    return PlistNode(
        plist_new_data(reinterpret_cast<const char*>(data.bytes().data()), data.bytes().size()));
}

PlistNode makeNode(const CFType* value, std::size_t depth) {
    if (!value || isTooDeep(*value, depth))
        return nullptr;
    switch (value->typeID()) {
    case CFTypeID::String:
        return makeStringNode(*static_cast<const CFString*>(value));
    case CFTypeID::Number:
        return makeNumberNode(*static_cast<const CFNumber*>(value));
    case CFTypeID::Bool:
        return PlistNode(plist_new_bool(static_cast<const CFBoolean*>(value)->value()));
    case CFTypeID::Data:
        return makeDataNode(*static_cast<const CFData*>(value));
    case CFTypeID::Date:
        return PlistNode(plist_new_date(static_cast<const CFDate*>(value)->seconds(), 0));
    case CFTypeID::Array:
        return makeArrayNode(*static_cast<const CFArray*>(value), depth + 1);
    case CFTypeID::Dictionary:
        return makeDictionaryNode(*static_cast<const CFDictionary*>(value), depth + 1);
    default:
        return nullptr;
    }
}

CFRef<const CFType> copyValue(const CFType* value, std::size_t depth);

CFRef<const CFType> copyArray(const CFArray& array, std::size_t depth) {
    CFArray::Items items;
    items.reserve(array.items().size());
    for (const auto& item : array.items()) {
        items.push_back(copyValue(item.get(), depth));
        if (!items.back())
            return nullptr;
    }
    return CFRef<CFArray>::adopt(new CFArray(std::move(items)));
}

CFRef<const CFType> copyDictionary(const CFDictionary& dictionary, std::size_t depth) {
    CFDictionary::Items items;
    for (const auto& [key, item] : dictionary.items()) {
        auto copy = copyValue(item.get(), depth);
        if (!copy || !isWritable(key))
            return nullptr;
        items.emplace(key, std::move(copy));
    }
    return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
}

CFRef<const CFType> copyString(const CFString& string) {
    if (!isWritable(string.text()))
        return nullptr;
    return CFRef<CFString>::adopt(new CFString(string.text()));
}

CFRef<const CFType> copyValue(const CFType* value, std::size_t depth) {
    if (!value || isTooDeep(*value, depth))
        return nullptr;
    switch (value->typeID()) {
    case CFTypeID::Array:
        return copyArray(*static_cast<const CFArray*>(value), depth + 1);
    case CFTypeID::Dictionary:
        return copyDictionary(*static_cast<const CFDictionary*>(value), depth + 1);
    case CFTypeID::String:
        return copyString(*static_cast<const CFString*>(value));
    case CFTypeID::Number:
    case CFTypeID::Bool:
    case CFTypeID::Data:
    case CFTypeID::Date:
        return CFRef<const CFType>::retain(value);
    default:
        return nullptr;
    }
}

} // namespace

CFRef<const CFType> CFPropertyListCreateFromXMLData(const CFData* data) {
    std::string_view bytes(reinterpret_cast<const char*>(data->bytes().data()),
                           data->bytes().size());
    const CFPropertyListForm form = CFPropertyListCheck(bytes);
    if (form == CFPropertyListForm::Invalid)
        return nullptr;

    const NumericCLocale locale;
    const auto parse = form == CFPropertyListForm::XML ? plist_from_xml : plist_from_bin;
    plist_t root = nullptr;
    parse(bytes.data(), static_cast<std::uint32_t>(bytes.size()), &root);
    const PlistNode owner(root);
    return root ? makeValue(root) : nullptr;
}

std::string CFPropertyListToXML(const CFType* propertyList) {
    const PlistNode root = makeNode(propertyList, 0);
    if (!root)
        return {};
    const NumericCLocale locale;
    char* text = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    const CText owner(text);
    return text && length <= kCFPropertyListMaxSize ? std::string(text, length) : std::string();
}

CFRef<const CFType> CFPropertyListCreateDeepCopy(const CFType* propertyList) {
    return copyValue(propertyList, 0);
}
