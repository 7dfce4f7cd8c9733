// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreServices/Files.h"
#include "platform/CoreServices/MacMemory.h"

#include <memory>

class IconImages;

/// A picture in one or several sizes. Each is decoded when it is first drawn, and kept.
class Icon final : public CFType {
public:
    explicit Icon(IconImages images);

    IconImages& images() const { return *images_; }

    CFTypeID typeID() const override { return CFTypeID::Icon; }

private:
    ~Icon() override;

    std::unique_ptr<IconImages> images_;
};

using IconRef = Icon*;

constexpr OSErr noSuchIconErr = -2580;

/// Icons of installed applications.
constexpr SInt16 kOnSystemDisk = -32768;

/// Reads the icon-family file and keeps the icon under creator and type until it is unregistered;
/// `*icon` is borrowed until then. fnfErr when it can't be read, noSuchIconErr when nothing in it
/// decodes, paramErr when something is registered under these two already.
OSErr RegisterIconRefFromFSRef(OSType creator, OSType iconType, const FSRef* file, IconRef* icon);

/// noSuchIconErr when nothing is registered under creator and type.
OSErr UnregisterIconRef(OSType creator, OSType iconType);

/// The icon that is registered under creator and type or, for a `volume` of kOnSystemDisk and type
/// 'APPL', that of the installed application which LSFindApplicationForInfo finds by the creator.
/// The caller owns a reference. noSuchIconErr when there is none.
///
/// An application's icon is its bundle's CFBundleIconFile, or its desktop entry's Icon: an absolute
/// path, or the name of an icon of the hicolor theme or in `pixmaps`. It is read again only after
/// its files changed.
OSErr GetIconRef(SInt16 volume, OSType creator, OSType iconType, CFRef<Icon>* icon);

using IconAlignmentType = SInt16;
using IconTransformType = SInt16;
using PlotIconRefFlags = UInt32;
constexpr IconAlignmentType kAlignAbsoluteCenter = 5;
constexpr IconTransformType kTransformNone = 0;
constexpr PlotIconRefFlags kPlotIconRefNormalFlags = 0;

struct RGBColor;

/// Draws the icon as large as the rectangle allows with its proportions kept, in the rectangle's
/// centre. Of its images the smallest is taken that has at least as many pixels as the device has
/// in that place; one of just that size isn't scaled. Alignment, transform, label colour and flags
/// must be kAlignAbsoluteCenter, kTransformNone, null and kPlotIconRefNormalFlags, else
/// paramErr.
OSStatus PlotIconRefInContext(CGContext* context, const CGRect* rect, IconAlignmentType alignment,
                              IconTransformType transform, const RGBColor* labelColor,
                              PlotIconRefFlags flags, IconRef icon);

/// An icon family's images as an object of the caller's own.
using IconSuite = Icon;

using IconSelectorValue = UInt32;
constexpr IconSelectorValue kSelectorAllAvailableData = 0xFFFFFFFF;

/// Takes every image of the family, which may be disposed of afterwards; the selector must be
/// kSelectorAllAvailableData. noSuchIconErr, with `*suite` null, when nothing in it decodes.
OSErr IconFamilyToIconSuite(const Handle& iconFamily, IconSelectorValue selector,
                            CFRef<IconSuite>* suite);
