// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/HIToolbox/Controls.h"
#include "platform/IconServices/Icons.h"
#include "platform/QuickDraw/QuickDraw.h"

// Icons from icon-family files. They are registered under the agent's creator code and cached from
// iconUtilSetup to iconUtilCleanup, during one visit. A readable file is read once. Icons are
// borrowed until the cleanup. Null when missing or damaged.

/// Begins with an empty cache.
void iconUtilSetup();

/// Unregisters all icons.
void iconUtilCleanup();

IconRef iconUtilGetIconFile(const CFURL* url);

/// The bundle's resource `name`.icns. Null for a null name.
IconRef iconUtilGetBundlesResourceIcon(const CFBundle* bundle, const CFString* name);
IconRef iconUtilGetResourceIcon(const CFString* name); ///< of the main bundle

/// Plots the icon into the current port. Does nothing without a port.
void iconUtilPlotIcon(const Rect& rect, IconAlignmentType alignment, IconTransformType transform,
                      IconRef icon);

/// Makes the icon the button's content; a null icon means no content.
void iconUtilSetControlButtonContentIcon(ControlButtonContentInfo* content, IconRef icon);

/// The key in the cache: the hash of the file's URL, as a signed 32-bit number.
CFRef<CFNumber> createHashKeyForURL(const CFURL* url);
