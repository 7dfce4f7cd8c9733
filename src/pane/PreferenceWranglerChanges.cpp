// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/RowMarks.h"
#include "src/link/Daemon.h"
#include "src/login/launch.h"
#include "src/pane/look/SampleScanView.h"
#include "src/record/differences.h"

namespace {

/// Changes that the preview shows.
constexpr ChangeMask kPreviewChanges =
    kChangeScanLineLook | kChangeGuideLineLook | kChangePointer | kChangePalette;

/// Settings that only one way of scanning uses. Their rows are open while it is chosen.
constexpr struct {
    std::size_t offset;
    SInt32 scanMode;
} kOfScanModes[] = {
    {offsetof(PrefsRecord, triggerOnRelease), 0},
    {offsetof(PrefsRecord, inverseReleaseTime), 1},
    {offsetof(PrefsRecord, stepScanCancelTime), 2},
};

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
    marks_.update();
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
        scanAreas_.show();
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
    for (const auto& [offset, scanMode] : kOfScanModes)
        setRowHidden(*viewOf(rowOf(settingAt(offset))), prefs.scanMode != scanMode);
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

// The login items follow the setting. They are never read back into it, so their state, and whether
// they could be changed, isn't checked.
void PreferenceWrangler::updateLaunchUI() {
    if (const CFBundle* agent = daemonMainBundle()) {
        const auto url = CFBundleCopyBundleURL(agent);
        launchFollowSetting(url.get(), prefs.launchAtLogin != 0, !shownLaunchAtLogin_);
    }
    shownLaunchAtLogin_ = prefs.launchAtLogin != 0;
    launchAtLogin_->setEnabled(true);
    launchAtLogin_->setState(prefs.launchAtLogin);
    activateAtLaunch_->setState(prefs.activateAtLaunch);
}
