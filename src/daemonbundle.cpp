// SPDX-License-Identifier: MIT
#include "src/daemonbundle.h"

namespace {

CFRef<const CFString> bundlePath;
CFRef<CFBundle> bundle;                    ///< made on first request
CFRef<CFBundle> (*makeBundle)() = nullptr; ///< null: from bundlePath

} // namespace

CFBundle* daemonMainBundle() {
    if (!bundle && makeBundle)
        bundle = makeBundle();
    else if (!bundle && bundlePath)
        if (const auto url = CFURLCreateWithFileSystemPath(bundlePath.get(), true))
            bundle = CFBundleCreate(url.get());
    return bundle.get();
}

void daemonSetBundlePath(const CFString* path) {
    bundlePath = CFRef<const CFString>::retain(path);
    bundle = nullptr;
}

void daemonMakeBundleBy(CFRef<CFBundle> (*make)()) {
    makeBundle = make;
}
