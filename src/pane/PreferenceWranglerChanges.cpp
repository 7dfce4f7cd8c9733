// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMatrix.h"
#include "src/link/Daemon.h"
#include "src/pane/look/SampleScanView.h"

namespace {

/// Changes that the preview shows.
constexpr ChangeMask kPreviewChanges =
    kChangeScanLineLook | kChangeGuideLineLook | kChangePointer | kChangePalette;

} // namespace

void PreferenceWrangler::changed(ChangeMask changes) {
    if (changes & kChangeButtonBumps) {
        palette_.changedButtonSizes();
        changes &= ~kChangeButtonBumps;
        if (!changes)
            return;
    }
    report(changes);
    showChanges(changes);
    noteStep();
    updateDefaults();
    guard_.follow();
    if (changes & (kChangeTriggers | kChangeHotKeys))
        updateMasterState();
}

void PreferenceWrangler::report(ChangeMask changes) {
    updateUIForChanges(changes);
    prefsWereChanged(changes & kChangeOnOff ? &prefs.on : nullptr);
    prefsStoreBeside();
    daemonSendChanges(changes, true);
    prefsKeepChanges();
}

void PreferenceWrangler::updateUIForChanges(ChangeMask changes) {
    if (changes & kChangeTriggers)
        updateTriggerUI();

    // Shows the line whose own look has changed. A change of both lines shows neither.
    const ChangeMask look = changes & (kChangeScanLineLook | kChangeGuideLineLook);
    if (look == kChangeScanLineLook)
        showSampleLineType(kSampleScanLine);
    else if (look == kChangeGuideLineLook)
        showSampleLineType(kSampleGuideLine);
    if (changes & kPreviewChanges)
        sampleScanImage_->setNeedsDisplay(true);
    if (changes & kChangeLaunch)
        updateLaunchUI();
}

/// Updates what else shows those groups. The agent doesn't wait for it.
void PreferenceWrangler::showChanges(ChangeMask changes) {
    if (changes & kChangePalette)
        palette_.updateButtonSizes();
    if (changes & kChangeScanArea)
        showScanArea();
    if (changes & kChangePointer)
        pointers_.updatePointerName();
    if (changes & kChangeHotKeys)
        hotKeys_.updateHotKeyNotes();
}

void PreferenceWrangler::showSampleLineType(SInt32 type) {
    sampleScanImage_->setSampleLineType(type);
}

void PreferenceWrangler::updateTriggerUI() {
    triggerOnReleaseRadios_->setEnabled(prefs.scanMode == 0);
}

void PreferenceWrangler::updateScanAreaRadios() {
    const bool usable = isUsable(prefs.scanArea);
    useScanAreaRadios_->cellWithTag(1)->setEnabled(usable);
    if (prefs.useScanArea && !usable) {
        prefs.useScanArea = 0;
        changed(kChangeScanArea);
    }
    useScanAreaRadios_->selectCellWithTag(prefs.useScanArea);
}

void PreferenceWrangler::changedUseScanArea(NSMatrix* sender) {
    prefs.useScanArea = sender->selectedTag() != 0;
    updateScanAreaRadios();
    changed(kChangeScanArea);
}

void PreferenceWrangler::changedTriggerOnRelease(NSMatrix* sender) {
    prefs.triggerOnRelease = sender->selectedTag() != 0;
    changed(kChangeTriggers);
}

void PreferenceWrangler::changedScanMode(NSMatrix* sender) {
    const int tag = sender->selectedTag();
    if (tag < 0 || tag > 2)
        return;
    prefs.scanMode = tag;
    changed(kChangeTriggers);
}
