// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/CarbonEvents.h"
#include "src/link/Daemon.h"
#include "src/pane/look/SampleScanView.h"
#include "src/record/keycombo.h"

namespace {

/// Changes that the preview shows.
constexpr ChangeMask kPreviewChanges =
    kChangeScanLineLook | kChangeGuideLineLook | kChangePointer | kChangePalette;

constexpr char kOffTopic[] = "off";

std::string stateText(bool isOn) {
    if (!isOn)
        return localized("Switch", "Your switch does nothing now");
    switch (daemonState()) {
    case AgentState::Running:
        return localized("Switch", "Ready for your switch");
    case AgentState::Starting:
        return localized("Switch", "Korvex is starting…");
    case AgentState::NotRunning:
        break;
    }
    return localized("Switch", "Korvex isn’t running");
}

/// A user who switched scanning off by mistake may have no other way to act.
void tellHowToSwitchOn() {
    const auto keys = createKeyComboString(prefs.hotKeys[0].modifiers, prefs.hotKeys[0].keyCode);
    const bool hasKeys = keys && prefs.hotKeys[0].keyCode >= 0;
    tellUser(
        kOffTopic,
        {.kind = UserMessage::Kind::Note,
         .text = hasKeys
                     ? filled(localized("Switch", "Scanning is off. %1 switches it on again."),
                              {toUTF8(keys.get())})
                     : localized("Switch", "Scanning is off, and no hot key switches it on again."),
         .buttons = {{localized("Switch", "Switch on"), [] {
                          if (theWrangler)
                              theWrangler->switchOn();
                      }}}});
}

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
}

void PreferenceWrangler::report(ChangeMask changes) {
    updateUIForChanges(changes);
    prefsWereChanged(changes & kChangeOnOff ? &prefs.on : nullptr);
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

void PreferenceWrangler::updateMasterOnOff() {
    masterOnOffRadios_->selectCellWithTag(prefs.on);
    masterOnOffRadios_->setEnabled(true);
    updateMasterState();
    if (prefs.on)
        withdrawMessage(kOffTopic);
}

void PreferenceWrangler::updateMasterState() {
    masterState_->setStringValue(stateText(prefs.on != 0));
    firstStepsUpdate();
}

void PreferenceWrangler::setMasterOnOff(bool on) {
    if ((prefs.on != 0) != on) {
        prefs.on = on;
        prefsWereChanged();
        prefsKeepChanges();
        history_.follow(prefs);
    }
    updateMasterOnOff();
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

void PreferenceWrangler::changedMasterOnOff(NSMatrix* sender) {
    const int tag = sender->selectedTag();
    const bool force = GetCurrentEventKeyModifiers() & optionKey;
    if (tag == prefs.on && !force)
        return;
    if (force)
        SysBeep(1);
    prefs.on = static_cast<UInt8>(tag);
    updateMasterOnOff();
    changed(force ? kChangeOnOff | kChangeForceOnOff : kChangeOnOff);
    if (!prefs.on && !force)
        tellHowToSwitchOn();
}

void PreferenceWrangler::switchOn() {
    prefs.on = 1;
    updateMasterOnOff();
    changed(kChangeOnOff);
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
