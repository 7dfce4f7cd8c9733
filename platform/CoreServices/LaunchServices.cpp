#include "platform/CoreServices/LaunchServices.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreServices/detail/AccessibilitySettings.h"
#include "platform/CoreServices/detail/DetachedProcess.h"
#include "platform/CoreServices/detail/InstalledApplications.h"

#include <map>
#include <memory>

namespace {

/// The pane of the system's settings that every desktop has in its own way.
constexpr char kUniversalAccessPane[] =
    "/System/Library/PreferencePanes/UniversalAccessPref.prefPane";

} // namespace

OSStatus LSOpenCFURLRef(const CFURL* url, CFRef<CFURL>* launched) {
    if (url && url->path() == kUniversalAccessPane)
        return openAccessibilitySettings() ? OSStatus{noErr} : kLSApplicationNotFoundErr;
    const CFRef<CFBundle> bundle = url ? CFBundleCreate(url) : nullptr;
    if (!bundle)
        return kLSApplicationNotFoundErr;
    const CFRef<CFURL> executable = CFBundleCopyExecutableURL(bundle.get());
    if (!executable)
        return kLSNotAnApplicationErr;

    // By executable; main thread only.
    static std::map<std::string, std::unique_ptr<DetachedProcess>> started;
    std::unique_ptr<DetachedProcess>& process = started[executable->path()];
    if (!process || !process->isRunning())
        process = DetachedProcess::start(executable->path());
    if (!process)
        return kLSUnknownErr;
    if (launched)
        *launched = CFBundleCopyBundleURL(bundle.get());
    return noErr;
}

OSStatus LSFindApplicationForInfo(OSType creator, const CFString* bundleID, const CFString* name,
                                  FSRef* ref, CFRef<CFURL>* url) {
    const auto text = [](const CFString* string) {
        return string ? CFStringToUTF8(string) : std::string();
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
