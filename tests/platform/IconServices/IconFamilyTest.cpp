#include "platform/IconServices/IconFamily.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <gmock/gmock.h>

namespace {

IconImages readFamily(const std::string& bytes) {
    return imagesOfIconFamily(
        CFRef<CFData>::adopt(new CFData(std::vector<UInt8>(bytes.begin(), bytes.end()))));
}

std::string repeated(std::size_t count, int byte) {
    return std::string(count, static_cast<char>(byte));
}

const QColor kTeal(0x11, 0x80, 0x90);

/// A bitmap whose right half is set, in black and in the mask; 16 by 16.
const std::string kBitmap = [] {
    std::string plane;
    for (int row = 0; row < 16; ++row)
        plane += std::string("\0\xFF", 2);
    return plane + plane;
}();

TEST(IconFamilyTest, DecodesEveryDepthWithEveryMask) {
    const std::string colour = iconElement("is32", packedColour(256, kTeal));
    const std::string mask8 = iconElement("s8mk", repeated(256, 0x80));
    const std::string bitmap = iconElement("ics#", kBitmap);
    const auto withAlpha = [](QColor c, int alpha) {
        c.setAlpha(alpha);
        return c;
    };
    const QColor clear(0, 0, 0, 0), white = Qt::white, black = Qt::black;
    // The standard palettes' entries of these numbers.
    const QColor purple(0x46, 0x00, 0xA5), brown(0x56, 0x2C, 0x05), yellow(0xFF, 0xFF, 0x00);

    const struct {
        const char* what;
        std::string family;
        QSize size;
        QColor left, right; // the first and the last pixel of the first row
    } cases[] = {
        {"24 bits", iconFamily({colour}), {16, 16}, kTeal, kTeal},
        {"24 bits, 8-bit mask",
         iconFamily({colour, mask8}),
         {16, 16},
         withAlpha(kTeal, 128),
         withAlpha(kTeal, 128)},
        {"24 bits, 1-bit mask", iconFamily({colour, bitmap}), {16, 16}, clear, kTeal},
        {"24 bits, both masks",
         iconFamily({bitmap, mask8, colour}),
         {16, 16},
         withAlpha(kTeal, 128),
         withAlpha(kTeal, 128)},
        {"24 bits, short mask",
         iconFamily({colour, iconElement("s8mk", "\x80")}),
         {16, 16},
         kTeal,
         kTeal},
        {"32 plain bits",
         iconFamily({iconElement("is32",
                                 [] {
                                     std::string pixels;
                                     for (int i = 0; i < 256; ++i)
                                         pixels += std::string("\0\x11\x80\x90", 4);
                                     return pixels;
                                 }())}),
         {16, 16},
         kTeal,
         kTeal},
        {"8 bits", iconFamily({iconElement("ics8", repeated(256, 5))}), {16, 16}, yellow, yellow},
        {"8 bits, 1-bit mask",
         iconFamily({iconElement("ics8", repeated(256, 5)), bitmap}),
         {16, 16},
         clear,
         yellow},
        {"8 bits, 8-bit mask",
         iconFamily({iconElement("ics8", repeated(256, 5)), mask8}),
         {16, 16},
         withAlpha(yellow, 128),
         withAlpha(yellow, 128)},
        {"4 bits", iconFamily({iconElement("ics4", repeated(128, 0x5A))}), {16, 16}, purple, brown},
        {"1 bit", iconFamily({bitmap}), {16, 16}, clear, black},
        {"1 bit, 8-bit mask",
         iconFamily({bitmap, mask8}),
         {16, 16},
         withAlpha(white, 128),
         withAlpha(black, 128)},
        {"16 by 12", iconFamily({iconElement("icm8", repeated(192, 5))}), {16, 12}, yellow, yellow},
        {"32 pixels",
         iconFamily({iconElement("il32", packedColour(1024, kTeal))}),
         {32, 32},
         kTeal,
         kTeal},
        {"48 pixels",
         iconFamily({iconElement("ich4", repeated(1152, 0x5A))}),
         {48, 48},
         purple,
         brown},
        {"128 pixels",
         iconFamily({iconElement("it32", repeated(4, 0) + packedColour(16384, kTeal)),
                     iconElement("t8mk", repeated(16384, 0x80))}),
         {128, 128},
         withAlpha(kTeal, 128),
         withAlpha(kTeal, 128)},
        {"PNG", iconFamily({iconElement("ic11", pngBytes(32, 32, kTeal))}), {32, 32}, kTeal, kTeal},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        const QImage image = readFamily(row.family).atLeast(1);
        ASSERT_EQ(image.size(), row.size);
        const auto near = [](QColor a, QColor b) { // premultiplied by the alpha
            return std::abs(a.red() - b.red()) < 3 && std::abs(a.green() - b.green()) < 3 &&
                   std::abs(a.blue() - b.blue()) < 3 && a.alpha() == b.alpha();
        };
        const QColor left = image.pixelColor(0, 0),
                     right = image.pixelColor(row.size.width() - 1, 0);
        EXPECT_TRUE(near(left, row.left)) << left.name(QColor::HexArgb).toStdString();
        EXPECT_TRUE(near(right, row.right)) << right.name(QColor::HexArgb).toStdString();
    }
}

TEST(IconFamilyTest, TheMostColoursThatAreWholeWin) {
    const std::string palette = iconElement("ics8", repeated(256, 5));
    const std::string colour = packedColour(256, kTeal);
    const auto first = [](const std::string& family) {
        return readFamily(family).atLeast(16).pixelColor(0, 0);
    };
    EXPECT_EQ(first(iconFamily({palette, iconElement("is32", colour)})), kTeal);
    EXPECT_EQ(first(iconFamily({palette, iconElement("is32", colour.substr(1))})),
              QColor(Qt::yellow));
    const std::string png = pngBytes(16, 16, Qt::red);
    EXPECT_EQ(first(iconFamily({iconElement("is32", colour), iconElement("icp4", png)})),
              QColor(Qt::red));
    const std::string cut = png.substr(0, png.size() - 30);
    EXPECT_EQ(first(iconFamily({iconElement("is32", colour), iconElement("icp4", cut)})), kTeal);
}

TEST(IconFamilyTest, BadFamiliesHaveNoImages) {
    const std::string colour = packedColour(256, kTeal);
    const std::string good = iconFamily({iconElement("is32", colour)});
    ASSERT_TRUE(readFamily(good).anyDecodes());
    ASSERT_TRUE(readFamily(good + "trailing").anyDecodes());
    std::string crowded;
    for (int i = 0; i < 129; ++i)
        crowded += iconElement("is32", colour);

    const struct {
        const char* what;
        std::string bytes;
    } cases[] = {
        {"empty", ""},
        {"zeros", repeated(200, 0)},
        {"header cut", "icns"},
        {"no elements", iconFamily({})},
        {"another type", "snci" + good.substr(4)},
        {"cut", good.substr(0, good.size() - 1)},
        {"length past the end", "icns" + bigEndian32Text(good.size() + 1) + good.substr(8)},
        {"length of a negative number", "icns\xFF\xFF\xFF\xFF" + good.substr(8)},
        {"element of length zero", iconElement("icns", repeated(8, 0) + good.substr(8))},
        {"element of length seven",
         iconElement("icns", "TOC " + bigEndian32Text(7) + good.substr(8))},
        {"element past the end",
         iconElement("icns", "is32" + bigEndian32Text(0x7FFFFFFF) + colour)},
        {"element header cut", iconElement("icns", good.substr(8) + "is32")},
        {"more elements than are read", iconElement("icns", crowded)},
        {"family in a family", iconFamily({iconElement("over", good)})},
        {"no colours", iconFamily({iconElement("is32", "")})},
        {"colours cut", iconFamily({iconElement("is32", colour.substr(0, colour.size() - 1))})},
        {"run over the channel's end", iconFamily({iconElement("is32", repeated(12, 0xFF))})},
        {"palette image short", iconFamily({iconElement("ics8", repeated(255, 5))})},
        {"bitmap without mask", iconFamily({iconElement("ics#", repeated(32, 5))})},
        {"mask alone", iconFamily({iconElement("s8mk", repeated(256, 5))})},
        {"huge PNG", iconFamily({iconElement("ic10", pngClaim(100'000, 100'000))})},
    };

    for (const auto& row : cases)
        EXPECT_FALSE(readFamily(row.bytes).anyDecodes()) << row.what;
}

/// Files that others wrote: by Pillow's writer, and JPEG 2000 by OpenJPEG through Pillow.
TEST(IconFamilyTest, ReadsOtherWritersFiles) {
    const struct {
        const char* file;
        std::vector<int> sides;
    } cases[] = {
        {"Pillow.icns", {32, 64, 128, 256}},
        {"JPEG2000.icns", {256}},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.file);
        IconImages images = readFamily(readFile(std::filesystem::path(TEST_ICONS) / row.file));
        for (const int side : row.sides) {
            const QImage image = images.atLeast(side);
            EXPECT_EQ(image.size(), QSize(side, side));
            EXPECT_EQ(image.pixelColor(side / 2, side / 2), QColor(0x20, 0x60, 0xC0));
            EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
        }
    }
}

TEST(IconImagesTest, DecodesOnceWhatIsNeeded) {
    std::vector<int> decoded;
    IconImages images;
    for (const int side : {64, 16, 128, 32})
        images.add({side, side / 2}, [side, &decoded] {
            decoded.push_back(side);
            return side == 32 ? QImage() : QImage(side, side / 2, QImage::Format_ARGB32);
        });
    images.add({0, 4}, [] { return QImage(1, 1, QImage::Format_ARGB32); });

    EXPECT_TRUE(images.anyDecodes());
    EXPECT_THAT(decoded, testing::ElementsAre(16));
    for (const auto& [wanted, taken] :
         {std::pair{1, 16}, {16, 16}, {17, 64}, {64, 64}, {65, 128}, {129, 128}, {10'000, 128}})
        EXPECT_EQ(images.atLeast(wanted).width(), taken) << wanted;
    EXPECT_THAT(decoded, testing::ElementsAre(16, 32, 64, 128));
}

} // namespace
