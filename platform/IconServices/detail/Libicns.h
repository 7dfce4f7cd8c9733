// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <QImage>

extern "C" {
#include <icns.h>
}

/// An image made by libicns. The object owns it.
class LibicnsImage {
public:
    LibicnsImage() = default;

    ~LibicnsImage() { icns_free_image(&image_); }

    LibicnsImage(const LibicnsImage&) = delete;
    LibicnsImage& operator=(const LibicnsImage&) = delete;

    icns_image_t* get() { return &image_; }

    /// A copy with plain alpha. Null unless it has that size and four channels of 8 bits.
    QImage toQImage(const QSize& size) const {
        const auto width = static_cast<icns_uint32_t>(size.width());
        const auto height = static_cast<icns_uint32_t>(size.height());
        if (!image_.imageData || image_.imageWidth != width || image_.imageHeight != height ||
            image_.imageChannels != 4 || image_.imagePixelDepth != 8 ||
            image_.imageDataSize < icns_uint64_t{4} * width * height)
            return {};
        return QImage(image_.imageData, size.width(), size.height(), QImage::Format_RGBA8888)
            .copy();
    }

private:
    icns_image_t image_{};
};
