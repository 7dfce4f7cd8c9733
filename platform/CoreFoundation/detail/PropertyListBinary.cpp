// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/PropertyListBinary.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/CarriedValue.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <cmath>
#include <cstdio>

namespace {

/// The layout: "bplist00"; the objects, each a byte of type and length, then its content; a table
/// of the objects' offsets; a trailer. Numbers are big-endian.
constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kTrailerSize = 32;

struct Object {
    unsigned type;       ///< the high half of the first byte
    std::size_t content; ///< where the content starts
    std::size_t count;   ///< bytes, UTF-16 units, items or pairs
    std::size_t size;    ///< of the content, in bytes
};

/// A moment as XML text, `seconds` after 2001-01-01 00:00 UTC. XML has the years 1 to 9999. Moments
/// outside become the first or last second of those. `seconds` is a number.
std::string dateText(double seconds) {
    using namespace std::chrono;
    constexpr sys_days epoch = 2001y / January / 1;
    constexpr double first = duration<double>(sys_days(1y / January / 1) - epoch).count();
    constexpr double end = duration<double>(sys_days(10000y / January / 1) - epoch).count();
    const double within = std::clamp(std::floor(seconds), first, end - 1);
    const sys_seconds moment = epoch + std::chrono::seconds(static_cast<std::int64_t>(within));
    const sys_days day = floor<days>(moment);
    const year_month_day date(day);
    const hh_mm_ss time(moment - day);
    char text[40];
    std::snprintf(text, sizeof text, "%04d-%02u-%02uT%02d:%02d:%02dZ", int{date.year()},
                  unsigned{date.month()}, unsigned{date.day()},
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
    return text;
}

/// Builds the objects, beginning at the root.
class Reader {
public:
    explicit Reader(std::string_view bytes) : bytes_(bytes) {}

    CFRef<const CFType> read() { return readTrailer() ? readValue(root_, 0) : nullptr; }

private:
    std::uint64_t number(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | static_cast<unsigned char>(bytes_[at + i]);
        return value;
    }

    /// The table must exactly fill the space between the objects and the trailer.
    bool readTrailer() {
        if (!bytes_.starts_with("bplist00") || bytes_.size() < kHeaderSize + 1 + kTrailerSize)
            return false;
        const std::size_t trailer = bytes_.size() - kTrailerSize;
        offsetSize_ = number(trailer + 6, 1);
        refSize_ = number(trailer + 7, 1);
        objects_ = number(trailer + 8, 8);
        root_ = number(trailer + 16, 8);
        table_ = number(trailer + 24, 8);
        return offsetSize_ >= 1 && offsetSize_ <= 8 && refSize_ >= 1 && refSize_ <= 8 &&
               table_ > kHeaderSize && table_ < trailer && objects_ <= trailer &&
               objects_ * offsetSize_ == trailer - table_;
    }

    bool findObject(std::size_t reference, Object& object) const {
        if (reference >= objects_)
            return false;
        const std::size_t offset = number(table_ + reference * offsetSize_, offsetSize_);
        if (offset < kHeaderSize || offset >= table_)
            return false;
        const auto marker = static_cast<unsigned char>(bytes_[offset]);
        object = {marker / 16u, offset + 1, marker % 16u, 0};
        return readCount(object) && measure(object) && object.size <= table_ - object.content;
    }

    /// A length of 15 means that an integer object with the length follows.
    bool readCount(Object& object) const {
        const bool isCounted = object.type >= 4 && object.type != 8;
        if (!isCounted || object.count != 15)
            return true;
        if (object.content >= table_)
            return false;
        const auto marker = static_cast<unsigned char>(bytes_[object.content]);
        const std::size_t size = std::size_t{1} << (marker % 16u);
        if (marker / 16u != 1 || marker % 16u > 3 || size >= table_ - object.content)
            return false;
        object.count = number(object.content + 1, size);
        object.content += 1 + size;
        return object.count <= bytes_.size();
    }

    /// Finds the content's size in bytes. False for a type that a property list doesn't have.
    bool measure(Object& object) const {
        const std::size_t count = object.count;
        switch (object.type) {
        case 0x0: // false, true
            object.size = 0;
            return count == 8 || count == 9;
        case 0x1: // integer, of at most sixteen bytes
            object.size = std::size_t{1} << count;
            return count <= 4;
        case 0x2: // real
            object.size = std::size_t{1} << count;
            return count == 2 || count == 3;
        case 0x3: // date
            object.size = 8;
            return count == 3;
        case 0x4: // data
        case 0x5: // ASCII text
            object.size = count;
            return true;
        case 0x6: // UTF-16 text
            object.size = 2 * count;
            return true;
        case 0x8: // keyed archive reference
            object.size = count + 1;
            return count == 0 || count == 1 || count == 3;
        case 0xA: // array
            object.size = count * refSize_;
            return true;
        case 0xD: // dictionary
            object.size = 2 * count * refSize_;
            return true;
        default:
            return false;
        }
    }

    /// Finds the object of a key or value. One that is used twice counts twice, so a small file
    /// can't become large in memory.
    bool takeObject(std::size_t reference, Object& object) {
        if (!findObject(reference, object))
            return false;
        total_ += 1 + object.size;
        return total_ <= kPropertyListMaxSize;
    }

    std::optional<std::u16string> readText(const Object& object) const {
        std::u16string text;
        const std::size_t width = object.type == 0x6 ? 2 : 1;
        for (std::size_t i = 0; i < object.count; ++i)
            text += static_cast<char16_t>(number(object.content + width * i, width));
        const bool isSound =
            isXMLText(text) &&
            (width == 2 || std::ranges::all_of(text, [](char16_t c) { return c < 0x80; }));
        return isSound ? std::optional(std::move(text)) : std::nullopt;
    }

    /// An integer that doesn't fit a signed 64-bit integer has 16 bytes.
    CFRef<const CFType> readInteger(const Object& object) const {
        if (object.size <= 8)
            return CFRef<CFNumber>::adopt(
                new CFNumber(static_cast<std::int64_t>(number(object.content, object.size))));
        char text[40];
        std::snprintf(text, sizeof text, "0x%016llx%016llx",
                      static_cast<unsigned long long>(number(object.content, 8)),
                      static_cast<unsigned long long>(number(object.content + 8, 8)));
        return CFRef<CarriedValue>::adopt(new CarriedValue("integer", text));
    }

    double readReal(const Object& object) const {
        const std::uint64_t bits = number(object.content, object.size);
        return object.size == 8 ? std::bit_cast<double>(bits)
                                : double{std::bit_cast<float>(static_cast<std::uint32_t>(bits))};
    }

    CFRef<const CFType> readDate(const Object& object) const {
        const double seconds = readReal(object);
        return std::isnan(seconds)
                   ? nullptr
                   : CFRef<CarriedValue>::adopt(new CarriedValue("date", dateText(seconds)));
    }

    /// A reference in a keyed archive. XML writes it as a dictionary.
    CFRef<const CFType> readUID(const Object& object) const {
        CFDictionary::Items items;
        items.emplace(u"CF$UID", CFRef<CFNumber>::adopt(new CFNumber(static_cast<std::int64_t>(
                                     number(object.content, object.size)))));
        return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
    }

    CFRef<const CFType> readData(const Object& object) const {
        const auto content = bytes_.substr(object.content, object.size);
        return CFRef<CFData>::adopt(new CFData(std::vector<UInt8>(content.begin(), content.end())));
    }

    std::size_t reference(const Object& container, std::size_t index) const {
        return number(container.content + index * refSize_, refSize_);
    }

    CFRef<const CFType> readArray(const Object& object, std::size_t depth) {
        CFArray::Items items;
        for (std::size_t i = 0; i < object.count; ++i) {
            items.push_back(readValue(reference(object, i), depth));
            if (!items.back())
                return nullptr;
        }
        return CFRef<CFArray>::adopt(new CFArray(std::move(items)));
    }

    CFRef<const CFType> readDictionary(const Object& object, std::size_t depth) {
        CFDictionary::Items items;
        for (std::size_t i = 0; i < object.count; ++i) {
            Object key{};
            if (!takeObject(reference(object, i), key) || (key.type != 0x5 && key.type != 0x6))
                return nullptr;
            auto text = readText(key);
            auto value = text ? readValue(reference(object, object.count + i), depth) : nullptr;
            if (!value)
                return nullptr;
            items.insert_or_assign(std::move(*text), std::move(value));
        }
        return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
    }

    CFRef<const CFType> readValue(std::size_t at, std::size_t depth) {
        Object object{};
        if (!takeObject(at, object))
            return nullptr;
        switch (object.type) {
        case 0x0:
            return CFRef<const CFBoolean>::retain(object.count == 9 ? kCFBooleanTrue
                                                                    : kCFBooleanFalse);
        case 0x1:
            return readInteger(object);
        case 0x2:
            return CFRef<CFNumber>::adopt(new CFNumber(readReal(object)));
        case 0x3:
            return readDate(object);
        case 0x4:
            return readData(object);
        case 0x8:
            return readUID(object);
        case 0xA:
            return depth < kPropertyListMaxDepth ? readArray(object, depth + 1) : nullptr;
        case 0xD:
            return depth < kPropertyListMaxDepth ? readDictionary(object, depth + 1) : nullptr;
        default: {
            auto text = readText(object);
            return text ? CFRef<CFString>::adopt(new CFString(std::move(*text))) : nullptr;
        }
        }
    }

    std::string_view bytes_;
    std::size_t offsetSize_ = 0;
    std::size_t refSize_ = 0;
    std::size_t objects_ = 0;
    std::size_t root_ = 0;
    std::size_t table_ = 0;
    std::size_t total_ = 0; ///< bytes of all objects taken
};

} // namespace

CFRef<const CFType> readBinaryPropertyList(std::string_view bytes) {
    return Reader(bytes).read();
}
