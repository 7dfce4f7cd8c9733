// SPDX-License-Identifier: MIT
#include "platform/IconServices/detail/IconFamily.h"

#include "platform/CoreGraphics/detail/DecodedImage.h"
#include "platform/IconServices/detail/BigEndian.h"
#include "platform/IconServices/detail/Libicns.h"

#include <algorithm>
#include <map>
#include <string>

// libicns decodes packed colours and palettes, which Qt can't. It trusts lengths in the file. So it
// gets single elements only, each with a checked length and in a family made for it.

namespace {

using namespace std::string_view_literals;

constexpr std::size_t kHeaderSize = 8; // of the family and of each element: type and length
constexpr auto kPNGSignature = "\x89PNG\r\n\x1A\n"sv;

/// The elements' contents by type. The first of each type counts.
using Elements = std::map<OSType, std::string_view>;

/// None when the lengths don't fit.
Elements elementsOfFamily(std::string_view family) {
    if (family.size() < kHeaderSize || bigEndian32(family) != fourCharCode("icns"))
        return {};
    const std::size_t size = bigEndian32(family.substr(4));
    if (size > family.size())
        return {};

    Elements elements;
    std::size_t count = 0;
    for (std::size_t at = kHeaderSize; at < size;) {
        if (size - at < kHeaderSize || ++count > kMaxIconFamilyElements)
            return {};
        const std::size_t length = bigEndian32(family.substr(at + 4));
        if (length < kHeaderSize || length > size - at)
            return {};
        elements.try_emplace(bigEndian32(family.substr(at)),
                             family.substr(at + kHeaderSize, length - kHeaderSize));
        at += length;
    }
    return elements;
}

void appendBigEndian32(std::string& bytes, std::size_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<char>(number >> shift));
}

std::string makeFamily(const Elements& elements) {
    std::string body;
    for (const auto& [type, content] : elements) {
        appendBigEndian32(body, type);
        appendBigEndian32(body, kHeaderSize + content.size());
        body += content;
    }
    std::string family = "icns";
    appendBigEndian32(family, kHeaderSize + body.size());
    return family + body;
}

/// One image, which libicns combines with its mask.
QImage decodeWithLibicns(const Elements& elements, OSType type, const QSize& size) {
    std::string bytes = makeFamily(elements);
    icns_set_print_errors(0);
    icns_family_t* family = nullptr;
    if (icns_import_family_data(static_cast<icns_size_t>(bytes.size()),
                                reinterpret_cast<icns_byte_t*>(bytes.data()),
                                &family) != ICNS_STATUS_OK)
        return {};
    LibicnsImage image;
    const int status = icns_get_image32_with_mask_from_family(family, type, image.get());
    std::free(family);
    return status == ICNS_STATUS_OK ? image.toQImage(size) : QImage();
}

/// The classic images of one size, by depth.
struct ClassicSize {
    int width, height;
    OSType colour, palette256, palette16, bitmap; ///< a bitmap has a mask after it
    OSType mask;                                  ///< 8 bits; 0 for none

    std::size_t pixels() const {
        return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    }
};

constexpr ClassicSize kClassicSizes[] = {
    {16, 12, 0, fourCharCode("icm8"), fourCharCode("icm4"), fourCharCode("icm#"), 0},
    {16, 16, fourCharCode("is32"), fourCharCode("ics8"), fourCharCode("ics4"), fourCharCode("ics#"),
     fourCharCode("s8mk")},
    {32, 32, fourCharCode("il32"), fourCharCode("icl8"), fourCharCode("icl4"), fourCharCode("ICN#"),
     fourCharCode("l8mk")},
    {48, 48, fourCharCode("ih32"), fourCharCode("ich8"), fourCharCode("ich4"), fourCharCode("ich#"),
     fourCharCode("h8mk")},
    {128, 128, fourCharCode("it32"), 0, 0, 0, fourCharCode("t8mk")},
};

/// Whether packed colours are sound. Each of the three channels is a series of runs. A run is one
/// repeated byte (length + 125, then the byte) or different bytes (length - 1, then the bytes). No
/// run may cross into the next channel. 128-pixel images begin with four zero bytes. Unpacked
/// colours are sound too: four bytes a pixel.
bool isSoundColour(std::string_view content, std::size_t pixels) {
    if (content.size() == 4 * pixels)
        return true;
    if (content.starts_with("\0\0\0\0"sv))
        content.remove_prefix(4);
    for (int channel = 0; channel < 3; ++channel) {
        for (std::size_t filled = 0; filled < pixels;) {
            if (content.empty())
                return false;
            const auto head = static_cast<UInt8>(content.front());
            const bool repeats = head & 0x80;
            const std::size_t run = repeats ? head - 125u : head + 1u;
            const std::size_t taken = 1 + (repeats ? 1 : run);
            if (taken > content.size() || run > pixels - filled)
                return false;
            content.remove_prefix(taken);
            filled += run;
        }
    }
    return true;
}

bool isSound(const ClassicSize& size, OSType type, std::string_view content) {
    const std::size_t pixels = size.pixels();
    if (type == size.colour)
        return isSoundColour(content, pixels);
    if (type == size.palette256 || type == size.mask)
        return content.size() == pixels;
    if (type == size.palette16)
        return content.size() == pixels / 2;
    return content.size() == pixels / 4; // one bit a pixel, and one for the mask
}

/// Applies the 8-bit mask if there is one, else the 1-bit mask, else none.
void applyMask(QImage& image, std::string_view mask, std::string_view bitmap) {
    const std::string_view bits = bitmap.substr(bitmap.size() / 2);
    std::size_t at = 0;
    for (int y = 0; y < image.height(); ++y) {
        UInt8* alpha = image.scanLine(y) + 3;
        for (int x = 0; x < image.width(); ++x, alpha += 4, ++at) {
            if (!mask.empty())
                *alpha = static_cast<UInt8>(mask[at]);
            else if (!bits.empty())
                *alpha = (bits[at / 8] << (at % 8)) & 0x80 ? 0xFF : 0;
        }
    }
}

/// `elements` are the sound ones of that size.
QImage decodeClassic(const ClassicSize& size, OSType type, const Elements& elements) {
    const auto content = [&](OSType wanted) {
        const auto found = elements.find(wanted);
        return found == elements.end() ? std::string_view() : found->second;
    };
    // libicns combines colours only with an 8-bit mask, and other depths only with a 1-bit mask. So
    // it gets a mask that hides nothing.
    const std::string opaque(size.pixels(), '\xFF');
    Elements forLibrary = {{type, content(type)}};
    if (type == size.colour)
        forLibrary.emplace(size.mask, opaque);
    else
        forLibrary.emplace(size.bitmap, std::string_view(opaque).substr(0, size.pixels() / 4));

    QImage image = decodeWithLibicns(forLibrary, type, {size.width, size.height});
    if (!image.isNull())
        applyMask(image, content(size.mask), content(size.bitmap));
    return std::move(image).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

void addPNG(IconImages& images, const CFRef<const CFData>& owner, std::string_view content) {
    const std::span bytes(reinterpret_cast<const UInt8*>(content.data()), content.size());
    if (content.starts_with(kPNGSignature))
        images.add(imageSize(bytes, "png"), [owner, bytes] { return decodeImage(bytes, "png"); });
}

void addClassic(IconImages& images, const CFRef<const CFData>& owner, const Elements& all,
                const ClassicSize& size) {
    const OSType byDepth[] = {size.colour, size.palette256, size.palette16, size.bitmap};
    Elements sound;
    for (const OSType type : {byDepth[0], byDepth[1], byDepth[2], byDepth[3], size.mask}) {
        const auto found = all.find(type);
        if (type != 0 && found != all.end() && isSound(size, type, found->second))
            sound.insert(*found);
    }
    for (const OSType type : byDepth)
        if (sound.contains(type))
            images.add({size.width, size.height},
                       [owner, &size, type, sound] { return decodeClassic(size, type, sound); });
}

} // namespace

IconImages imagesOfIconFamily(CFRef<const CFData> family) {
    const auto bytes = family->bytes();
    const Elements elements =
        elementsOfFamily({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    IconImages images;
    for (const auto& [type, content] : elements)
        addPNG(images, family, content);
    for (const ClassicSize& size : kClassicSizes)
        addClassic(images, family, elements, size);
    return images;
}
