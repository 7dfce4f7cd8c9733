// SPDX-License-Identifier: MIT
#include "platform/IconServices/detail/IconFamily.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

namespace {

IconImages readFamily(const std::string& bytes) {
    return imagesOfIconFamily(makeData(bytes));
}

/// Colour data of equal pixels; their number is a multiple of 128. Each channel consists of runs of
/// 128.
std::string packedColour(std::size_t pixels, QRgb colour) {
    std::string packed;
    for (const int value : {qRed(colour), qGreen(colour), qBlue(colour)})
        packed += repeated(pixels / 128, {'\xFD', static_cast<char>(value)});
    return packed;
}

constexpr QRgb kTeal = 0xFF118090, kYellow = 0xFFFFFF00;
const std::string kPixels = packedColour(256, kTeal), kColour = iconElement("is32", kPixels);
const std::string kPalette = iconElement("ics8", repeated(256, "\5"));

TEST(IconFamilyTest, DecodesEveryDepthWithEveryMaskAndTheMostColoursThatAreWhole) {
    const std::string mask8 = iconElement("s8mk", repeated(256, "\x80"));
    // All pixels but the first are set, in the image and in the mask.
    const std::string bitmap = iconElement("ics#", repeated(32, "\x7F\xFF"));
    const std::string png = pngBytes(16, 16, Qt::red), large = packedColour(16384, kTeal);
    const auto faint = [](QRgb colour) { return qPremultiply(colour & 0x80FFFFFF); };
    // Entries 5 and 10 of the standard palette, and others.
    constexpr QRgb purple = 0xFF4600A5, brown = 0xFF562C05, red = 0xFFFF0000;
    constexpr QRgb clear = 0, black = 0xFF000000, white = 0xFFFFFFFF;

    const struct {
        std::vector<std::string> elements;
        QSize size;
        QRgb left, right; // the first and the last pixel of the first row
    } cases[] = {
        {{kColour, bitmap}, {16, 16}, clear, kTeal},
        {{bitmap, mask8, kColour}, {16, 16}, faint(kTeal), faint(kTeal)},
        {{kColour, iconElement("s8mk", "\x80")}, {16, 16}, kTeal, kTeal},
        {{iconElement("is32", repeated(256, {"\0\x11\x80\x90", 4}))}, {16, 16}, kTeal, kTeal},
        {{kPalette, bitmap}, {16, 16}, clear, kYellow},
        {{kPalette, mask8}, {16, 16}, faint(kYellow), faint(kYellow)},
        {{iconElement("ics4", repeated(128, "\x5A"))}, {16, 16}, purple, brown},
        {{bitmap}, {16, 16}, clear, black},
        {{bitmap, mask8}, {16, 16}, faint(white), faint(black)},
        {{iconElement("icm8", repeated(192, "\5"))}, {16, 12}, kYellow, kYellow},
        {{iconElement("it32", std::string(4, '\0') + large)}, {128, 128}, kTeal, kTeal},
        {{kPalette, kColour}, {16, 16}, kTeal, kTeal},
        {{kPalette, iconElement("is32", kPixels.substr(1))}, {16, 16}, kYellow, kYellow},
        {{kColour, iconElement("icp4", png)}, {16, 16}, red, red},
        {{kColour, iconElement("icp4", png.substr(0, png.size() - 30))}, {16, 16}, kTeal, kTeal}};

    for (const auto& row : cases) {
        SCOPED_TRACE(&row - cases);
        const QImage image = readFamily(iconFamily(row.elements)).atLeast(1);
        ASSERT_EQ(image.size(), row.size);
        EXPECT_EQ(image.pixel(0, 0), row.left);
        EXPECT_EQ(image.pixel(row.size.width() - 1, 0), row.right);
    }
}

} // namespace
