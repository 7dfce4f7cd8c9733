#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/PropertyListGuardForms.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>

namespace {

/// The form: "bplist00"; the objects, each a byte of type and length and its content; the table of
/// the objects' offsets; a trailer. Numbers are big-endian.
constexpr std::size_t kHeaderSize = 8;
constexpr std::size_t kTrailerSize = 32;
constexpr double kLastDateSeconds = 2147483647.0;

struct Object {
    unsigned type;       ///< the high half of the first byte
    std::size_t content; ///< where the content starts
    std::size_t count;   ///< bytes, UTF-16 units, items or pairs
    std::size_t size;    ///< of the content, in bytes
};

/// Walks the objects from the root as libplist would make them, with a stack of the containers.
class BinaryGuard {
public:
    explicit BinaryGuard(std::string_view bytes) : bytes_(bytes) {}

    bool check() {
        if (!readTrailer() || !visit(root_))
            return false;
        while (depth_ > 0) {
            Open& top = stack_[depth_ - 1];
            if (top.next == top.total) {
                --depth_;
                continue;
            }
            const std::size_t reference = number(top.content + top.next * refSize_, refSize_);
            const bool isKey = top.next++ < top.keys;
            if (isKey ? !visitKey(reference) : !visit(reference))
                return false;
        }
        return true;
    }

private:
    struct Open {
        std::size_t content; ///< where its references start
        std::size_t keys;    ///< how many of them, in front, are a dictionary's keys
        std::size_t total;
        std::size_t next;
    };

    std::uint64_t number(std::size_t at, std::size_t size) const {
        std::uint64_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value = value << 8 | static_cast<unsigned char>(bytes_[at + i]);
        return value;
    }

    /// The table must fill the space between the objects and the trailer to the byte.
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

    /// A length of 15 means that the length follows, as an integer object.
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

    /// The content's size in bytes; false for a type that a property list doesn't have.
    bool measure(Object& object) const {
        const std::size_t count = object.count;
        switch (object.type) {
        case 0x0: // false, true
            object.size = 0;
            return count == 8 || count == 9;
        case 0x1: // integer, of at most eight bytes
            object.size = std::size_t{1} << count;
            return count <= 3;
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

    bool isSoundContent(const Object& object) const {
        const std::string_view content = bytes_.substr(object.content, object.size);
        if (object.type == 0x3) {
            const auto seconds = std::bit_cast<double>(number(object.content, 8));
            return std::abs(seconds) <= kLastDateSeconds;
        }
        if (object.type == 0x5)
            return std::all_of(content.begin(), content.end(),
                               [](unsigned char c) { return c < 0x80 && isXMLCharacter(c); });
        return object.type != 0x6 || isSoundUTF16(object);
    }

    bool isSoundUTF16(const Object& object) const {
        std::u16string units;
        for (std::size_t i = 0; i < object.count; ++i)
            units += static_cast<char16_t>(number(object.content + 2 * i, 2));
        for (std::u16string_view rest = units; !rest.empty();) {
            if (!isXMLCharacter(takeUTF16(rest)))
                return false;
        }
        return true;
    }

    bool account(const Object& object) {
        total_ += 1 + object.size;
        return total_ <= kCFPropertyListMaxSize && isSoundContent(object);
    }

    bool visitKey(std::size_t reference) {
        Object object{};
        return findObject(reference, object) && (object.type == 0x5 || object.type == 0x6) &&
               account(object);
    }

    bool visit(std::size_t reference) {
        Object object{};
        if (!findObject(reference, object) || !account(object))
            return false;
        const bool isDictionary = object.type == 0xD;
        if (object.type != 0xA && !isDictionary)
            return true;
        if (depth_ == kCFPropertyListMaxDepth)
            return false;
        const std::size_t keys = isDictionary ? object.count : 0;
        stack_[depth_++] = {object.content, keys, object.count + keys, 0};
        return true;
    }

    std::string_view bytes_;
    std::size_t offsetSize_ = 0;
    std::size_t refSize_ = 0;
    std::size_t objects_ = 0;
    std::size_t root_ = 0;
    std::size_t table_ = 0;
    std::size_t total_ = 0; ///< bytes of all objects visited, each as often as it is used
    std::array<Open, kCFPropertyListMaxDepth> stack_{};
    std::size_t depth_ = 0;
};

} // namespace

bool isSoundBinaryPropertyList(std::string_view bytes) {
    return BinaryGuard(bytes).check();
}
