// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <QImage>

#include <span>

/// The longest side that an image may have, in pixels. A file that says more isn't decoded, so that
/// no image takes more than 128 MiB on the way, which is below the limit that Qt sets to it itself.
constexpr int kMaxImageSide = 4096;

/// The size of an image in a file's bytes, taken as of that one format ("png", "svg", "xpm"). Empty
/// when they are of another format, are too large, or Qt has no plug-in for the format.
QSize imageSize(std::span<const UInt8> bytes, const char* format);

/// Decodes the image to 32 bits a pixel with premultiplied alpha; null when its size is empty or
/// the bytes are damaged. `scaledSide`, unless 0, is what the longer side becomes, for formats
/// without pixels of their own.
QImage decodeImage(std::span<const UInt8> bytes, const char* format, int scaledSide = 0);
