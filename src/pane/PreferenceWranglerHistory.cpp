// SPDX-License-Identifier: MIT
#include "src/pane/PreferenceWrangler.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/AppKit/NSWindow.h"
#include "platform/AppKit/RowMarks.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/controls/BumperController.h"
#include "src/record/settingwords.h"
#include "src/store/recovery.h"

#include <chrono>

namespace {

double secondsNow() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(now).count();
}

/// A step in words: "Volume: 70 back to 50, and 2 more settings."
std::string stepText(const SettingSet& settings, const PrefsRecord& before,
                     const PrefsRecord& after, const char* pattern) {
    return filled(localized("Changes", "%1.", "a sentence"),
                  {changesText(settings, before, after, pattern)});
}

UserMessage::Button undoButton(const std::string& label) {
    return {label, [] {
                if (theWrangler)
                    theWrangler->undo(nullptr);
            }};
}

} // namespace

void PreferenceWrangler::beginHistory() {
    profiles_.load();
    history_ = History(prefs, profiles_.inUse());
    marks_.begin();
    updateHistoryUI();
    guard_.begin([this](const SettingSet& settings, const PrefsRecord& record) {
        putBack(settings, record);
    });
}

void PreferenceWrangler::noteStep() {
    profiles_.show();
    if (!differences(history_.now(), prefs).any())
        return;
    history_.note(prefs, secondsNow(), profiles_.inUse());
    withdrawMessage(kChangeTopic);
    updateHistoryUI();
}

void PreferenceWrangler::noteProfile() {
    history_.note(history_.now(), secondsNow(), profiles_.inUse());
}

void PreferenceWrangler::adopt(const SettingSet& settings, const PrefsRecord& record) {
    const SettingSet different = settings & differences(prefs, record);
    if (different.none())
        return;
    copySettings(different, record, prefs);
    history_.finishStep();
    showAndReport(different);
    history_.finishStep();
}

// A command stores the name of the profile in use before it sends the change.
void PreferenceWrangler::changedElsewhere(const SettingSet& settings, const PrefsRecord& record) {
    profiles_.load();
    adopt(settings, record);
    if (settings[rowOf(settingAt(offsetof(PrefsRecord, launchAtLogin)))]) {
        shownLaunchAtLogin_ = false; // chosen, even if the setting is the same
        updateLaunchUI();
    }
    noteProfile();
}

void PreferenceWrangler::undo(NSButton*) {
    if (const HistoryStep* step = history_.undo(prefs))
        showStep(*step, step->after, step->before, kSettingBecomesAgain);
}

void PreferenceWrangler::redo(NSButton*) {
    if (const HistoryStep* step = history_.redo(prefs))
        showStep(*step, step->before, step->after, kSettingBecomes);
}

void PreferenceWrangler::resetPaletteButtons(NSButton*) {
    const PrefsRecord before = prefs;
    palette_.resetPaletteButtons();
    if (differences(before, prefs).any())
        tellUser(kChangeTopic,
                 {.kind = UserMessage::Kind::Note,
                  .text = localized("Changes", "The palette has its original buttons again."),
                  .buttons = {undoButton(localized("Changes", "Undo this"))}});
}

void PreferenceWrangler::showStep(const HistoryStep& step, const PrefsRecord& before,
                                  const PrefsRecord& after, const char* pattern) {
    if (step.profileBefore != step.profileAfter)
        profiles_.setInUse(&before == &step.before ? step.profileAfter : step.profileBefore);
    showAndReport(step.settings);
    moveTo(marks_.viewOf(step.settings, before, after));
    palette_.pointAtChange(before, after);
    tellUser(kChangeTopic,
             {.kind = UserMessage::Kind::Note,
              .text = joined(Joint::Sentences, {stepText(step.settings, before, after, pattern),
                                                profiles_.keepInUse()})});
    updateHistoryUI();
}

/// The focus goes along, unless it is on a button that can undo more.
void PreferenceWrangler::moveTo(NSView* view) {
    const bool goesOn = (undoBtn_->isFirstResponder() && history_.canUndo()) ||
                        (redoBtn_->isFirstResponder() && history_.canRedo());
    if (!view)
        return;
    if (!goesOn)
        view->window().makeFirstResponder(nullptr); // hiding a view would pass it on
    view->scrollToVisible();
    if (!goesOn)
        focusRow(*view);
}

void PreferenceWrangler::putBack(const SettingSet& settings, const PrefsRecord& record) {
    const PrefsRecord before = prefs;
    adopt(settings, record);
    tellUser(kChangeTopic, {.kind = UserMessage::Kind::Note,
                            .text = stepText(settings, before, prefs, kSettingBecomesAgain),
                            .buttons = {undoButton(localized("Changes", "Undo this"))}});
}

void PreferenceWrangler::takeImport(const SettingsOffer& offer) {
    const PrefsRecord before = prefs;
    const SettingSet changes = offer.settings & differences(before, offer.record);
    if (changes.none())
        return;
    adopt(changes, offer.record);
    tellUser(kChangeTopic, {.kind = UserMessage::Kind::Note,
                            .text = stepText(changes, before, prefs, kSettingBecomes),
                            .buttons = {undoButton(localized("Changes", "Undo this"))}});
}

/// Tells the agent first, since showing every value takes longer.
void PreferenceWrangler::showAndReport(const SettingSet& settings) {
    report(changesOf(settings));
    showValues(settings, false);
    noteStep();
    marks_.update();
    if (prefsAreAsStored()) {
        prefsWerentChanged();
        recoveryForget();
    }
    guard_.follow();
}

void PreferenceWrangler::updateHistoryUI() {
    undoBtn_->setEnabled(history_.canUndo());
    redoBtn_->setEnabled(history_.canRedo());
}

NSView* PreferenceWrangler::viewOf(std::size_t row) const {
    if (const auto* number = dynamic_cast<NumberController*>(settingControls_[row]))
        return number->view();
    if (auto* check = dynamic_cast<NSButton*>(settingControls_[row]))
        return check;

    const struct {
        std::size_t offset;
        NSView* view;
    } views[] = {
        {offsetof(PrefsRecord, launchAtLogin), launchAtLogin_},
        {offsetof(PrefsRecord, activateAtLaunch), activateAtLaunch_},
        {offsetof(PrefsRecord, triggerOnRelease), triggerOnReleaseRadios_},
        {offsetof(PrefsRecord, scanMode), scanModeRadios_},
        {offsetof(PrefsRecord, scanArea), scanAreas_.scanAreaText},
        {offsetof(PrefsRecord, useScanArea), scanAreas_.useScanAreaRadios},
        {offsetof(PrefsRecord, lineColor), lineColors_.lineColor},
        {offsetof(PrefsRecord, pointerImageName), pointers_.pointerName},
        {offsetof(PrefsRecord, hotKeys), hotKeys_.scan.view},
        {offsetof(PrefsRecord, buttonSize), palette_.buttonSize->view()},
        {offsetof(PrefsRecord, buttonShape), palette_.buttonShapeRadios},
        {offsetof(PrefsRecord, buttonContent), palette_.buttonContentIconCheck},
        {offsetof(PrefsRecord, buttonActions), palette_.paletteView},
    };

    for (const auto& [offset, view] : views)
        if (offset == kSettings[row].offset)
            return view;
    return nullptr;
}
