// SPDX-License-Identifier: MIT
#include "src/prefpane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"

void PreferenceWrangler::findMySpeed(NSButton* sender) {
    const auto identifier = CFStringCreateMutable(0);
    CFStringAppend(identifier.get(), kAgentBundleID);
    CFStringAppend(identifier.get(), CFSTR(".PrefsPane"));
    tryPageOpen(CFBundleGetBundleWithIdentifier(identifier.get()), sender->window(), *this);
}

void PreferenceWrangler::takeLineScanTime(double seconds) {
    prefs.lineScanTime = seconds;
    loadNumbers();
    changed(kChangeScanSpeed);
}
