// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGImage.h"

#include "platform/CoreGraphics/detail/DecodedImage.h"

CGImage::CGImage(const QImage& image) : image_(std::make_unique<const QImage>(image)) {}

CGImage::~CGImage() = default;

CFRef<CGImage> CGImageCreateWithPNGDataProvider(const CGDataProvider* source, const CGFloat* decode,
                                                bool, CGColorRenderingIntent) {
    if (decode)
        return nullptr;
    const QImage image = decodeImage(source->data()->bytes(), "png");
    return image.isNull() ? nullptr : CFRef<CGImage>::adopt(new CGImage(image));
}

std::size_t CGImageGetWidth(const CGImage* image) {
    return static_cast<std::size_t>(image->image().width());
}

std::size_t CGImageGetHeight(const CGImage* image) {
    return static_cast<std::size_t>(image->image().height());
}
