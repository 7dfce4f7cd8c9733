// SPDX-License-Identifier: MIT
#include "src/files/imageutil.h"

#include "src/files/fsutil.h"

namespace {

constexpr SInt32 kPictureFileHeaderSize = 512;

/// The URL of the bundle's resource at the top level. Null without a bundle.
CFRef<CFURL> resourceURL(const CFBundle* bundle, const CFString* name, const CFString* type) {
    return bundle ? CFBundleCopyResourceURL(bundle, name, type, nullptr) : nullptr;
}

} // namespace

CFRef<CGImage> imageUtilLoadPNG(const CFBundle* bundle, const CFString* subfolder,
                                const CFString* name) {
    if (!bundle || !name)
        return nullptr;
    const auto url = CFBundleCopyResourceURL(bundle, name, CFSTR("png"), subfolder);
    const auto provider = url ? CGDataProviderCreateWithURL(url.get()) : nullptr;
    if (!provider)
        return nullptr;
    return CGImageCreateWithPNGDataProvider(provider.get(), nullptr, false,
                                            kCGRenderingIntentDefault);
}

Handle imageUtilGetResourcePict(const CFString* name) {
    const auto url = resourceURL(CFBundleGetMainBundle(), name, CFSTR("pict"));
    return fsGetFileContentsAsHandle(url.get(), kPictureFileHeaderSize);
}

CFRef<IconSuite> imageUtilGetIconFile(const CFURL* url) {
    const Handle family = fsGetFileContentsAsHandle(url, 0);
    CFRef<IconSuite> suite;
    if (family)
        IconFamilyToIconSuite(family, kSelectorAllAvailableData, &suite);
    return suite;
}

CFRef<IconSuite> imageUtilGetBundlesResourceIcon(const CFBundle* bundle, const CFString* name) {
    return imageUtilGetIconFile(resourceURL(bundle, name, CFSTR("icns")).get());
}

CFRef<IconSuite> imageUtilGetResourceIcon(const CFString* name) {
    return imageUtilGetBundlesResourceIcon(CFBundleGetMainBundle(), name);
}
