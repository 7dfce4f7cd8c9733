// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSPreferencePane.h"

bool NSPreferencePane::loadMainView(std::vector<std::string>& errors) {
    const CFRef<CFURL> folder = CFBundleCopyBundleURL(bundle());
    const auto* name = dynamicCFCast<CFString>(
        CFBundleGetValueForInfoDictionaryKey(bundle(), CFSTR("NSMainNibFile")));
    if (!name) {
        errors.push_back(folder->path() + "/Contents/Info.plist: NSMainNibFile names no file");
        return false;
    }
    const CFRef<CFURL> form = CFBundleCopyResourceURL(bundle(), name, CFSTR("ui"), nullptr);
    if (!form) {
        errors.push_back(folder->path() + "/Contents/Resources/" + toUTF8(name) +
                         ".ui: no such file");
        return false;
    }
    return nib_.instantiate(form->path(), *this, errors);
}
