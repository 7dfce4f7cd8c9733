// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <QImage>

#include <optional>
#include <span>

/// The size of an image in a JPEG 2000 file, if it is of the kind that icon families have: four
/// components of 8 bits, none of them subsampled, without a palette, at most 1024 pixels on a side
/// and in few tiles. Nothing else may be decoded: the decoder takes memory as the file says, and
/// libicns takes it that there are four components of the image's size.
std::optional<QSize> sizeOfIconJPEG2000(std::span<const UInt8> bytes);

/// Decodes such a file, which sizeOfIconJPEG2000 has found sound; null when it is damaged.
QImage decodeIconJPEG2000(std::span<const UInt8> bytes, const QSize& size);
