#include "platform/CoreGraphics/CGImage.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <gtest/gtest.h>
#include <sys/resource.h>

namespace {

CFRef<CGDataProvider> provider(const std::filesystem::path& path) {
    return CGDataProviderCreateWithURL(
        CFURLCreateFromFileSystemRepresentation(path.c_str(), false).get());
}

/// The image in a file of that content; null when there is none.
CFRef<CGImage> load(const std::string& content) {
    const auto file = makeSandboxFolder("images") / "file.png";
    writeFile(file, content);
    return CGImageCreateWithPNGDataProvider(provider(file).get(), nullptr, false,
                                            kCGRenderingIntentDefault);
}

TEST(CGImageTest, DecodesEveryDepthToTheSamePixels) {
    QImage plain(5, 3, QImage::Format_ARGB32);
    plain.fill(Qt::white);
    plain.setPixelColor(4, 2, Qt::black);
    for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8,
                              QImage::Format_Grayscale16, QImage::Format_RGBA64}) {
        const auto image = load(pngBytes(plain.convertToFormat(format)));
        ASSERT_TRUE(image) << format;
        EXPECT_EQ(image->image().convertToFormat(QImage::Format_ARGB32), plain) << format;
    }
    const QColor half(255, 0, 0, 128);
    EXPECT_EQ(load(pngBytes(1, 1, half))->image().pixelColor(0, 0), half);
}

TEST(CGImageTest, WhatIsNoWholePNGOrTooLargeIsNullAndTakesNoMemory) {
    const std::string whole = pngBytes(40, 40, Qt::red);
    const std::string cases[] = {"",
                                 "not an image",
                                 whole.substr(0, 33),
                                 whole.substr(0, whole.size() - 30),
                                 whole.substr(0, 45) + std::string(20, '\x55') + whole.substr(65),
                                 pngClaim(0, 0),
                                 pngClaim(4097, 1),
                                 pngClaim(0x7FFFFFFF, 0x7FFFFFFF)};
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    for (const std::string& content : cases)
        EXPECT_FALSE(load(content)) << testing::PrintToString(content);
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16'000) << "kilobytes";
    EXPECT_FALSE(provider("/dev/zero"));
    const auto file = makeSandboxFolder("images") / "file.png";
    std::filesystem::resize_file(file, kCGMaxImageFileSize + 1);
    EXPECT_FALSE(provider(file));
}

} // namespace
