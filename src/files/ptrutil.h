// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreGraphics/CGImage.h"

#include <string>

// The pointer images of the agent's bundle: PNG files in the folder Pointers of its resources. A
// pointer's name is its file name without the extension, in the bytes of the file system. After its
// last '+' it may have the hot spot, in pixels from the top-left corner: "hand+12x7".

/// A pointer. The caller owns it.
struct PointerImage {
    CFRef<CGImage> image;
    CGPoint hotSpot; ///< the top-left corner if the name has none
};

inline constexpr char kPointersFolder[] = "Pointers";

/// Loads the pointer with that name. False with `out` unchanged when the bundle is null, the name
/// isn't UTF-8, the folder has no regular file of that name, or it can't be decoded.
bool ptrutilLoadPointerFromBundle(const CFBundle* bundle, const char* name, PointerImage* out);

void ptrutilDisposePointer(PointerImage* pointer);

/// A pointer's name as shown to users: without the hot spot.
std::string ptrutilPointerTitle(const char* name);
