// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/pane/area/choosearea.h"
#include "src/record/settingwords.h"

namespace {

/// Says why no area can be drawn, and what helps.
std::string explain(OSStatus error) {
    return error == errCouldntSetUserFocus
               ? localized("ScanArea",
                           "Another program holds the keyboard. Close its menus, then try again.")
               : localized("ScanArea",
                           "This desktop lets no window cover the screens. Choose a part "
                           "above or type numbers; to draw an area, log in to a "
                           "session with X11 (Xorg).");
}

} // namespace

void PreferenceWrangler::updateScanAreaText() {
    scanAreaText_->setStringValue(settingText(settingAt(offsetof(PrefsRecord, scanArea)), prefs));
}

void PreferenceWrangler::showScanArea() {
    updateScanAreaRadios();
    updateScanAreaText();
    scanAreas_.update();
}

void PreferenceWrangler::setCustomScanArea(NSButton*) {
    auto& [x, y, width, height] = prefs.scanArea;
    CGRect area = CGRectMake(x, y, width, height);
    if (!chooseArea(&area)) {
        if (chooseAreaError() != noErr)
            scanAreaText_->setStringValue(explain(chooseAreaError()));
        return;
    }
    prefs.scanArea = {area.origin.x, area.origin.y, area.size.width, area.size.height};
    prefs.useScanArea = !CGRectIsEmpty(area);
    updateScanAreaRadios();
    changed(kChangeScanArea);
}
