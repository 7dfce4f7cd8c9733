// SPDX-License-Identifier: MIT
#include "platform/CoreServices/LaunchServices.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/detail/AccessibilitySettings.h"
#include "platform/CoreServices/detail/InstalledApplications.h"
#include "platform/CoreServices/detail/StartedApplications.h"

namespace {

/// macOS's accessibility settings. Each desktop has its own.
constexpr char kUniversalAccessPane[] =
    "/System/Library/PreferencePanes/UniversalAccessPref.prefPane";

} // namespace

OSStatus LSOpenCFURLRef(const CFURL* url, CFRef<CFURL>* launched) {
    if (url && url->path() == kUniversalAccessPane)
        return openAccessibilitySettings() ? OSStatus{noErr} : kLSApplicationNotFoundErr;
    if (!url)
        return kLSApplicationNotFoundErr;
    const OSStatus started = StartedApplications::shared().start(url);
    if (launched && started == noErr)
        *launched = CFBundleCopyBundleURL(CFBundleCreate(url).get());
    return started;
}

OSStatus LSFindApplicationForInfo(OSType creator, const CFString* bundleID, const CFString* name,
                                  FSRef* ref, CFRef<CFURL>* url) {
    const auto text = [](const CFString* string) {
        return string ? toUTF8(string) : std::string();
    };
    const auto found = findInstalledApplication(creator, text(bundleID), text(name));
    if (!found)
        return kLSApplicationNotFoundErr;
    if (ref)
        ref->path = found->path;
    if (url)
        *url = CFURLCreateFromFileSystemRepresentation(found->path.c_str(), found->isBundle);
    return noErr;
}
