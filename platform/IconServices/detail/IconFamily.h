// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFData.h"
#include "platform/IconServices/detail/IconImages.h"

/// The largest icon-family file that is read, in bytes, and the most elements in one.
constexpr std::size_t kMaxIconFamilySize = 16u << 20;
constexpr std::size_t kMaxIconFamilyElements = 128;

/// The images of an icon family (the content of a file of type "icns"); none when it isn't one, or
/// says lengths that don't fit. Read are the classic images of 16 by 12 to 128 pixels with 1, 4, 8
/// and 24 bits a pixel, with their 1- and 8-bit masks; and PNG images, but not JPEG 2000. Of one
/// size, the image with the most colours is taken. Nothing is decoded yet.
IconImages imagesOfIconFamily(CFRef<const CFData> family);
