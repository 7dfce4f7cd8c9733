// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"
#include "platform/IconServices/detail/IconImages.h"

/// The largest icon-family file, in bytes, and the largest number of elements in one.
constexpr std::size_t kMaxIconFamilySize = 16u << 20;
constexpr std::size_t kMaxIconFamilyElements = 128;

/// The images of an icon family (the content of an "icns" file). None when it isn't one or its
/// lengths don't fit. Reads classic images of 16 by 12 to 128 pixels with 1, 4, 8 and 24 bits a
/// pixel, and their 1- and 8-bit masks. Reads PNG images, but not JPEG 2000. Of one size, the image
/// with the most colours is taken. Nothing is decoded yet.
IconImages imagesOfIconFamily(CFRef<const CFData> family);
