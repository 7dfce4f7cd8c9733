// SPDX-License-Identifier: MIT
#include "platform/IconServices/detail/JPEG2000.h"

#include "platform/IconServices/detail/BigEndian.h"
#include "platform/IconServices/detail/Libicns.h"

#include <algorithm>
#include <string_view>

namespace {

using namespace std::string_view_literals;

constexpr UInt32 kMaxSide = 1024;
constexpr UInt32 kMaxTiles = 64;
constexpr std::size_t kMaxBytes = std::size_t{kMaxSide} * kMaxSide * 4;

constexpr auto kSignature = "\0\0\0\x0CjP  \r\n\x87\n"sv;
/// The markers that a codestream begins with: SOC, and SIZ, whose fields (ISO/IEC 15444-1, A.5.1)
/// follow.
constexpr auto kCodestreamStart = "\xFF\x4F\xFF\x51"sv;

enum SizeField : std::size_t {
    kWidth = 8,
    kHeight = 12,
    kLeft = 16,
    kTop = 20,
    kTileWidth = 24,
    kTileHeight = 28,
    kTileLeft = 32,
    kTileTop = 36,
    kComponents = 40
};

/// Their number, and of each its depth less one and the horizontal and vertical distance of
/// samples.
constexpr auto kFourPlainComponents = "\0\x04\x07\1\1\x07\1\1\x07\1\1\x07\1\1"sv;

std::optional<QSize> sizeOfCodestream(std::string_view stream) {
    if (stream.size() < kComponents)
        return std::nullopt;
    const auto field = [&](SizeField at) { return bigEndian32(stream.substr(at)); };
    const UInt32 width = field(kWidth), height = field(kHeight);
    const UInt32 tileWidth = field(kTileWidth), tileHeight = field(kTileHeight);
    if (width - 1 >= kMaxSide || height - 1 >= kMaxSide || tileWidth == 0 || tileHeight == 0)
        return std::nullopt;
    const UInt32 tiles = ((width - 1) / tileWidth + 1) * ((height - 1) / tileHeight + 1);
    if (tiles > kMaxTiles || field(kLeft) || field(kTop) || field(kTileLeft) || field(kTileTop))
        return std::nullopt;

    if (!stream.substr(kComponents).starts_with(kFourPlainComponents))
        return std::nullopt;
    return QSize(static_cast<int>(width), static_cast<int>(height));
}

} // namespace

std::optional<QSize> sizeOfIconJPEG2000(std::span<const UInt8> bytes) {
    const std::string_view file(reinterpret_cast<const char*>(bytes.data()), bytes.size());
    if (!file.starts_with(kSignature) || file.size() > kMaxBytes)
        return std::nullopt;
    // Wherever the decoder finds its codestream, it is this one; and no palette makes other
    // components of it.
    const std::size_t start = file.find(kCodestreamStart);
    if (start == file.npos || start != file.rfind(kCodestreamStart) ||
        file.find("pclr"sv) != file.npos)
        return std::nullopt;
    return sizeOfCodestream(file.substr(start));
}

QImage decodeIconJPEG2000(std::span<const UInt8> bytes, const QSize& size) {
    std::vector<UInt8> copy(bytes.begin(), bytes.end());
    LibicnsImage image;
    icns_set_print_errors(0);
    if (icns_jp2_to_image(static_cast<icns_size_t>(copy.size()), copy.data(), image.get()) !=
        ICNS_STATUS_OK)
        return {};
    return image.toQImage(size).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}
