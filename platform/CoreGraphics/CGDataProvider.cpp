// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGDataProvider.h"

#include "platform/CoreFoundation/detail/FileReading.h"

CFRef<CGDataProvider> CGDataProviderCreateWithURL(const CFURL* url) {
    FileContents file = readRegularFile(url->path(), kMaxImageFileSize);
    if (!file.data)
        return nullptr;
    return CFRef<CGDataProvider>::adopt(new CGDataProvider(std::move(file.data)));
}
