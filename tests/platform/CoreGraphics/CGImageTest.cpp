// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGImage.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <sys/resource.h>

namespace {

CFRef<CGDataProvider> provider(const fs::path& path) {
    return CGDataProviderCreateWithURL(
        CFURLCreateFromFileSystemRepresentation(path.c_str(), false).get());
}

/// The image from a file with that content. Null when there is none.
CFRef<CGImage> load(const std::string& content) {
    const auto file = makeSandboxFolder("images") / "file.png";
    writeFile(file, content);
    return CGImageCreateWithPNGDataProvider(provider(file).get(), nullptr, false,
                                            kCGRenderingIntentDefault);
}

TEST(CGImageTest, WhatIsNoWholePNGOrTooLargeIsNullAndTakesNoMemory) {
    const std::string whole = pngBytes(40, 40, Qt::red);
    const std::string cut = whole.substr(0, whole.size() - 30);
    const std::string damaged = whole.substr(0, 45) + std::string(20, '\x55') + whole.substr(65);
    const std::string huge = pngClaim(0x7FFFFFFF, 0x7FFFFFFF);
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    for (const std::string& content :
         {std::string(), std::string("not an image"), whole.substr(0, 33), cut, damaged,
          pngClaim(0, 0), pngBytes(4097, 1, Qt::red), pngBytes(1, 4097, Qt::red), huge})
        EXPECT_FALSE(load(content)) << testing::PrintToString(content);
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 16'000) << "kilobytes";
    EXPECT_FALSE(provider("/dev/zero"));
    const auto file = makeSandboxFolder("images") / "file.png";
    fs::resize_file(file, kMaxImageFileSize + 1);
    EXPECT_FALSE(provider(file));
}

} // namespace
