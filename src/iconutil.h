// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/HIToolbox/Controls.h"
#include "platform/IconServices/Icons.h"
#include "platform/QuickDraw/QuickDraw.h"

// Icons from icon-family files, registered under the agent's creator code and kept from
// iconUtilSetup to iconUtilCleanup, one visit of the pane. In between, a file that could be read is
// read once. Icons are borrowed until the cleanup; null when missing or damaged.

/// Starts with nothing kept.
void iconUtilSetup();

/// Unregisters all icons.
void iconUtilCleanup();

IconRef iconUtilGetIconFile(const CFURL* url);

/// The bundle's resource `name`.icns; null for a null name.
IconRef iconUtilGetBundlesResourceIcon(const CFBundle* bundle, const CFString* name);
IconRef iconUtilGetResourceIcon(const CFString* name); ///< of the main bundle

/// Plots the icon into the current port; nothing without a port.
void iconUtilPlotIcon(const Rect& rect, IconAlignmentType alignment, IconTransformType transform,
                      IconRef icon);

/// Makes the icon, or nothing if it is null, the button's content.
void iconUtilSetControlButtonContentIcon(ControlButtonContentInfo* content, IconRef icon);

/// What icons are kept by: the hash of the file's URL, as a signed 32-bit number.
CFRef<CFNumber> createHashKeyForURL(const CFURL* url);
