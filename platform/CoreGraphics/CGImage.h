// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGDataProvider.h"
#include "platform/CoreGraphics/CGGeometry.h"

#include <memory>

class QImage;

/// A picture of pixels. Immutable.
class CGImage final : public CFType {
public:
    explicit CGImage(const QImage& image);

    const QImage& image() const { return *image_; }

    CFTypeID typeID() const override { return CFTypeID::Image; }

private:
    ~CGImage() override;

    std::unique_ptr<const QImage> image_;
};

enum CGColorRenderingIntent { kCGRenderingIntentDefault = 0 };

/// Decodes a PNG. Its colours are taken as the device's. Null when the data is no PNG, is damaged,
/// or is larger than 4096 pixels on a side; then nothing is decoded. `decode` must be null. The
/// last two arguments have no effect.
CFRef<CGImage> CGImageCreateWithPNGDataProvider(const CGDataProvider* source, const CGFloat* decode,
                                                bool shouldInterpolate,
                                                CGColorRenderingIntent intent);

/// In pixels.
std::size_t CGImageGetWidth(const CGImage* image);
std::size_t CGImageGetHeight(const CGImage* image);

/// Draws the image into the rectangle, upright. Its edges lie on whole pixels of the screen. With a
/// scale of a whole number pixels keep sharp edges; with any other the image is smoothed.
void CGContextDrawImage(CGContext* context, CGRect rect, const CGImage* image);
