// SPDX-License-Identifier: MIT
#include "src/pane/area/ScanAreaChooser.h"

#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/RowMarks.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/controls/BumperController.h"
#include "src/pane/area/choosearea.h"
#include "src/record/settingwords.h"
#include "src/store/prefs.h"

#include <utility>

namespace {

/// Says why no area can be drawn, and what helps.
std::string explain(OSStatus error) {
    return error == errCouldntSetUserFocus
               ? localized("ScanArea",
                           "Another program holds the keyboard. Close its menus, then try again.")
               : localized("ScanArea",
                           "This desktop lets no window cover the screens. Choose a part "
                           "above and change its numbers; to draw an area, log in to a "
                           "session with X11 (Xorg).");
}

/// Says what came of drawing an area, when that is over.
void tellOutcome(std::string text) {
    tellUser(kChangeTopic, {.kind = UserMessage::Kind::Note, .text = std::move(text)});
}

/// An area that can't be scanned for one side, as typed numbers may make it. Empty for any other.
std::string missingText(const ScanArea& area) {
    if ((area.width > 0) == (area.height > 0))
        return {};
    return area.width > 0 ? localized("ScanArea", "The height is missing.")
                          : localized("ScanArea", "The width is missing.");
}

} // namespace

void ScanAreaChooser::updateRadios() {
    const bool usable = isUsable(prefs.scanArea);
    useScanAreaRadios->cellWithTag(1)->setEnabled(usable);
    if (prefs.useScanArea && !usable) {
        prefs.useScanArea = 0;
        changes_.changed(kChangeScanArea);
    }
    useScanAreaRadios->selectCellWithTag(prefs.useScanArea);
}

void ScanAreaChooser::updateText() {
    const std::string missing = missingText(prefs.scanArea);
    scanAreaText->setStringValue(
        missing.empty() ? settingText(settingAt(offsetof(PrefsRecord, scanArea)), prefs) : missing);
}

void ScanAreaChooser::show() {
    updateRadios();
    updateText();
    update();
}

void ScanAreaChooser::showNumberRows() {
    // Typed numbers may make an area that can't be used yet.
    const bool isOpen = prefs.useScanArea || !missingText(prefs.scanArea).empty();
    for (const BumperController* side : {scanAreaLeft, scanAreaTop, scanAreaWidth, scanAreaHeight})
        setRowHidden(*side->view(), !isOpen);
}

void ScanAreaChooser::changedUseScanArea(NSMatrix* sender) {
    prefs.useScanArea = sender->selectedTag() != 0;
    updateRadios();
    changes_.changed(kChangeScanArea);
}

void ScanAreaChooser::setCustomScanArea() {
    auto& [x, y, width, height] = prefs.scanArea;
    CGRect area = CGRectMake(x, y, width, height);
    if (!chooseArea(&area)) {
        if (chooseAreaError() != noErr)
            scanAreaText->setStringValue(explain(chooseAreaError()));
        else
            tellOutcome(localized("ScanArea", "What is scanned stays as it was."));
        return;
    }
    prefs.scanArea = {area.origin.x, area.origin.y, area.size.width, area.size.height};
    prefs.useScanArea = !CGRectIsEmpty(area);
    updateRadios();
    changes_.changed(kChangeScanArea);
    tellOutcome(prefs.useScanArea
                    ? filled(localized("ScanArea", "Only your own area is scanned now: %1."),
                             {settingText(settingAt(offsetof(PrefsRecord, scanArea)), prefs)})
                    : localized("ScanArea", "You have no area of your own any more. The whole "
                                            "screen is scanned."));
}
