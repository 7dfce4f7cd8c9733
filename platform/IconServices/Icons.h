// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreServices/Files.h"
#include "platform/CoreServices/MacMemory.h"

#include <memory>

class IconImages;

/// A picture in one or more sizes. Each is decoded when it is first drawn, then kept.
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

/// Reads the icon-family file and keeps the icon under creator and type until it is unregistered.
/// `*icon` is borrowed until then. fnfErr when the file can't be read, noSuchIconErr when nothing
/// in it decodes, paramErr when the two are already in use.
OSErr RegisterIconRefFromFSRef(OSType creator, OSType iconType, const FSRef* file, IconRef* icon);

/// noSuchIconErr when nothing is registered under creator and type.
OSErr UnregisterIconRef(OSType creator, OSType iconType);

/// The icon registered under creator and type. With kOnSystemDisk and type 'APPL' also that of an
/// installed application, which LSFindApplicationForInfo finds by the creator. The caller owns a
/// reference. noSuchIconErr when there is none.
///
/// An application's icon is its bundle's CFBundleIconFile, or its desktop entry's Icon: an absolute
/// path, or the name of an icon of the user's icon theme, of the hicolor theme or in `pixmaps`. It
/// is read again only after its files changed.
OSErr GetIconRef(SInt16 volume, OSType creator, OSType iconType, CFRef<Icon>* icon);

using IconAlignmentType = SInt16;
using IconTransformType = SInt16;
using PlotIconRefFlags = UInt32;
constexpr IconAlignmentType kAlignAbsoluteCenter = 5;
constexpr IconTransformType kTransformNone = 0;
constexpr PlotIconRefFlags kPlotIconRefNormalFlags = 0;

struct RGBColor;

/// Draws the icon centred in the rectangle, as large as its proportions allow. It takes the
/// smallest image that has enough pixels for the device. An image of exactly that size isn't
/// scaled. paramErr unless alignment, transform, label colour and flags are kAlignAbsoluteCenter,
/// kTransformNone, null and kPlotIconRefNormalFlags.
OSStatus PlotIconRefInContext(CGContext* context, const CGRect* rect, IconAlignmentType alignment,
                              IconTransformType transform, const RGBColor* labelColor,
                              PlotIconRefFlags flags, IconRef icon);

/// An icon family's images, owned by the caller.
using IconSuite = Icon;

using IconSelectorValue = UInt32;
constexpr IconSelectorValue kSelectorAllAvailableData = 0xFFFFFFFF;

/// Takes every image of the family. The family may be disposed of afterwards. The selector must be
/// kSelectorAllAvailableData. noSuchIconErr and a null `*suite` when nothing decodes.
OSErr IconFamilyToIconSuite(const Handle& iconFamily, IconSelectorValue selector,
                            CFRef<IconSuite>* suite);
