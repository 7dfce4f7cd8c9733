#include "platform/CoreGraphics/CGImage.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <QImage>
#include <gmock/gmock.h>
#include <sys/resource.h>

namespace fs = std::filesystem;

namespace {

class CGImageTest : public testing::Test {
protected:
    /// The image in a file of that content; null when there is none.
    CFRef<CGImage> load(const std::string& content) {
        writeFile(file_, content);
        const auto url = CFURLCreateFromFileSystemRepresentation(file_.c_str(), false);
        const auto provider = CGDataProviderCreateWithURL(url.get());
        return provider ? CGImageCreateWithPNGDataProvider(provider.get(), nullptr, false,
                                                           kCGRenderingIntentDefault)
                        : nullptr;
    }

    fs::path file_ = makeSandboxFolder("images") / "file.png";
};

TEST_F(CGImageTest, DecodesEveryDepthToTheSamePixels) {
    QImage plain(5, 3, QImage::Format_ARGB32);
    plain.fill(Qt::white);
    plain.setPixelColor(4, 2, Qt::black);
    for (const auto format : {QImage::Format_Mono, QImage::Format_Indexed8,
                              QImage::Format_Grayscale8, QImage::Format_Grayscale16,
                              QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBA64}) {
        SCOPED_TRACE(format);
        const auto image = load(pngBytes(plain.convertToFormat(format)));
        ASSERT_TRUE(image);
        EXPECT_EQ(image->image().size(), plain.size());
        EXPECT_EQ(image->image().convertToFormat(QImage::Format_ARGB32), plain);
    }
    const auto half = load(pngBytes(1, 1, QColor(255, 0, 0, 128)));
    EXPECT_EQ(half->image().pixelColor(0, 0), QColor(255, 0, 0, 128));
}

TEST_F(CGImageTest, WhatIsNoWholePNGIsNull) {
    const std::string whole = pngBytes(40, 40, Qt::red);
    QByteArray bmp;
    QBuffer buffer(&bmp);
    buffer.open(QIODevice::WriteOnly);
    QImage(4, 4, QImage::Format_RGB32).save(&buffer, "BMP");

    const struct {
        const char* what;
        std::string content;
    } cases[] = {
        {"empty", ""},
        {"text", "not an image"},
        {"another format", bmp.toStdString()},
        {"signature alone", whole.substr(0, 8)},
        {"header alone", whole.substr(0, 33)},
        {"cut in the pixels", whole.substr(0, whole.size() - 30)},
        {"damaged pixels", whole.substr(0, 45) + std::string(20, '\x55') + whole.substr(65)},
        {"no size", pngClaim(0, 0)},
        {"huge", pngClaim(100'000, 100'000)},
        {"wide", pngClaim(4097, 1)},
        {"largest number", pngClaim(0x7FFFFFFF, 0x7FFFFFFF)},
    };

    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    for (const auto& row : cases)
        EXPECT_FALSE(load(row.content)) << row.what;
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16'000) << "kilobytes";
}

TEST_F(CGImageTest, OnlyRegularFilesWithinTheLimitAreRead) {
    const auto provider = [](const fs::path& path) {
        return CGDataProviderCreateWithURL(
            CFURLCreateFromFileSystemRepresentation(path.c_str(), false).get());
    };
    writeFile(file_, "x");
    EXPECT_TRUE(provider(file_));
    fs::resize_file(file_, kCGMaxImageFileSize + 1);
    EXPECT_FALSE(provider(file_));
    EXPECT_FALSE(provider(file_.parent_path()));
    EXPECT_FALSE(provider("/dev/zero"));
    EXPECT_FALSE(provider(file_.parent_path() / "none"));
}

} // namespace
