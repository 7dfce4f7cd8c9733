// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "src/record/settingwords.h"

void PreferenceWrangler::findMySpeed(NSButton* sender) {
    openTryPage(sender->window());
}

void PreferenceWrangler::openTryPage(NSWindow window) {
    tryPageOpen(ownBundle(), window, *this);
}

void PreferenceWrangler::takeTime(const Setting& setting, double seconds) {
    setSettingNumber(setting, seconds, prefs);
    loadNumbers(SettingSet().set());
    changed(setting.changes);
}
