// SPDX-License-Identifier: MIT
#include "src/files/iconutil.h"

#include <unordered_map>

namespace {

constexpr OSType kIconCreator = fourCharCode("Krvx");

struct ByHash {
    CFHashCode operator()(const CFRef<CFNumber>& key) const { return CFHash(key.get()); }
};

struct ByValue {
    bool operator()(const CFRef<CFNumber>& a, const CFRef<CFNumber>& b) const {
        return CFEqual(a.get(), b.get());
    }
};

/// The registered icon of each file. Icon Services owns the icons.
std::unordered_map<CFRef<CFNumber>, IconRef, ByHash, ByValue> iconCache;

/// The number of attempted registrations. Attempt k uses icon type k, so no type is used twice in
/// the process.
UInt32 lastIconType = 0;

} // namespace

void iconUtilSetup() {
    iconCache.clear();
}

void iconUtilCleanup() {
    for (UInt32 type = 1; type <= lastIconType; ++type)
        UnregisterIconRef(kIconCreator, type);
    iconCache.clear(); // its icons are gone
}

IconRef iconUtilGetIconFile(const CFURL* url) {
    if (!url)
        return nullptr;
    const auto key = createHashKeyForURL(url);
    const auto known = iconCache.find(key);
    if (known != iconCache.end())
        return known->second;
    FSRef file;
    if (!CFURLGetFSRef(url, &file))
        return nullptr;
    IconRef icon = nullptr;
    if (RegisterIconRefFromFSRef(kIconCreator, ++lastIconType, &file, &icon) != noErr)
        return nullptr;
    return iconCache[key] = icon;
}

IconRef iconUtilGetBundlesResourceIcon(const CFBundle* bundle, const CFString* name) {
    if (!bundle)
        return nullptr;
    return iconUtilGetIconFile(CFBundleCopyResourceURL(bundle, name, CFSTR("icns"), nullptr).get());
}

IconRef iconUtilGetResourceIcon(const CFString* name) {
    return name ? iconUtilGetBundlesResourceIcon(CFBundleGetMainBundle(), name) : nullptr;
}

void iconUtilPlotIcon(const Rect& rect, IconAlignmentType alignment, IconTransformType transform,
                      IconRef icon) {
    GrafPtr port;
    GetPort(&port);
    const auto context = CreateCGContextForPort(port);
    if (!context)
        return;
    Rect bounds;
    GetPortBounds(port, &bounds);
    const int height = bounds.bottom - bounds.top;
    const auto toFloat = [](int points) { return static_cast<CGFloat>(points); };
    const CGRect area =
        CGRectMake(toFloat(rect.left), toFloat(height - rect.bottom),
                   toFloat(rect.right - rect.left), toFloat(rect.bottom - rect.top));
    PlotIconRefInContext(context.get(), &area, alignment, transform, nullptr,
                         kPlotIconRefNormalFlags, icon);
}

void iconUtilSetControlButtonContentIcon(ControlButtonContentInfo* content, IconRef icon) {
    content->contentType = icon ? kControlContentIconRef : kControlNoContent;
    content->iconRef = icon;
}

CFRef<CFNumber> createHashKeyForURL(const CFURL* url) {
    const auto hash = static_cast<SInt32>(CFHash(url));
    return CFNumberCreate(kCFNumberSInt32Type, &hash);
}
