// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <QImage>

#include <span>

/// The longest side of an image, in pixels. A larger one isn't decoded. So decoding takes at most
/// 128 MiB, which is below Qt's own limit.
constexpr int kMaxImageSide = 4096;

/// The size of the image in a file's bytes. They are read in that format only ("png", "svg",
/// "xpm"). Empty when they are in another format, the image is too large, or Qt has no plug-in for
/// the format.
QSize imageSize(std::span<const UInt8> bytes, const char* format);

/// Decodes the image to 32 bits a pixel with premultiplied alpha. Null when its size is empty or
/// the bytes are damaged. `scaledSide` is for formats without pixels of their own: the length of
/// the longer side, or 0 to keep the size.
QImage decodeImage(std::span<const UInt8> bytes, const char* format, int scaledSide = 0);
