// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreGraphics/CGImage.h"
#include "platform/CoreServices/MacMemory.h"
#include "platform/IconServices/Icons.h"

// Pictures from bundles' resources. The caller owns them. Null when missing or damaged.

/// The resource `name`.png in a subfolder of the resources, or at their top level when `subfolder`
/// is null.
CFRef<CGImage> imageUtilLoadPNG(const CFBundle* bundle, const CFString* subfolder,
                                const CFString* name);

/// The picture in the main bundle's resource `name`.pict, without the file header.
Handle imageUtilGetResourcePict(const CFString* name);

/// The icon suite in an icon-family file.
CFRef<IconSuite> imageUtilGetIconFile(const CFURL* url);

/// The icon suite of the bundle's resource `name`.icns.
CFRef<IconSuite> imageUtilGetBundlesResourceIcon(const CFBundle* bundle, const CFString* name);
CFRef<IconSuite> imageUtilGetResourceIcon(const CFString* name); ///< of the main bundle
