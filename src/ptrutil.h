// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreGraphics/CGImage.h"

#include <string>

// The pointer images of the agent's bundle: PNG files in the folder Pointers of its resources. A
// pointer's name is that of its file without the extension, in the bytes of the file system. After
// its last '+' it may give the hot spot in pixels from the top-left corner: "hand+12x7".

/// A pointer, owned by its caller.
struct PointerImage {
    CFRef<CGImage> image;
    CGPoint hotSpot; ///< the top-left corner when the name gives none
};

inline constexpr char kPointersFolder[] = "Pointers";

/// Loads the pointer of that name. False, with `out` left as it was, when the bundle is null, the
/// name isn't UTF-8, there is no regular file of that name in the folder, or it can't be decoded.
bool ptrutilLoadPointerFromBundle(const CFBundle* bundle, const char* name, PointerImage* out);

void ptrutilDisposePointer(PointerImage* pointer);

/// What the user reads of a pointer's name: all but the hot spot.
std::string ptrutilPointerTitle(const char* name);
