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

/// Decodes a PNG; colours are taken as the device's. Null when the data isn't one, is damaged, or
/// says that it is larger than 4096 pixels on a side: then nothing is decoded. `decode` must be
/// null; interpolation and intent make no difference.
CFRef<CGImage> CGImageCreateWithPNGDataProvider(const CGDataProvider* source, const CGFloat* decode,
                                                bool shouldInterpolate,
                                                CGColorRenderingIntent intent);

/// In pixels.
std::size_t CGImageGetWidth(const CGImage* image);
std::size_t CGImageGetHeight(const CGImage* image);

/// Draws the image into the rectangle, its top where y is largest. It lies on whole pixels of the
/// screen. A scale of whole numbers keeps its pixels' edges sharp, any other smooths them.
void CGContextDrawImage(CGContext* context, CGRect rect, const CGImage* image);
