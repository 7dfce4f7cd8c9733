// SPDX-License-Identifier: MIT
#include "src/firststeps/FirstStepsPage.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSMatrix.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/controls/SliderController.h"
#include "src/controls/page.h"
#include "src/link/Daemon.h"
#include "src/record/settings.h"

#include <algorithm>
#include <memory>

namespace {

/// The page; null while it isn't open. Never destroyed: an exit handler may end the visit.
auto& page = *new std::unique_ptr<FirstStepsPage>;

/// A key in the agent's domain, as for the notice's day. True once the page has been left.
const CFString* seenKey() {
    return CFSTR("firstStepsSeen");
}

bool isAnythingStored() {
    return std::any_of(kSettings.begin(), kSettings.end(), [](const Setting& setting) -> bool {
        return CFPreferencesCopyValue(CFSTR(setting.key), kAgentBundleID, kCFPreferencesCurrentUser,
                                      kCFPreferencesAnyHost)
            .get();
    });
}

std::string agentText() {
    switch (daemonState()) {
    case AgentState::Running:
        return localized("FirstSteps", "It is running.");
    case AgentState::Starting:
        return localized("FirstSteps", "It is starting…");
    case AgentState::NotInstalled:
        return localized("FirstSteps", "None is installed yet.");
    case AgentState::NotRunning:
    case AgentState::Ended:
        break;
    }
    return localized("FirstSteps", "It isn’t running now.");
}

/// What is beside the button that is to be hit.
std::string firstScanText(int hits) {
    if (hits > 0)
        return hits == 1 ? localized("FirstSteps", "Hit! So you reach everything on the screen.")
                         : localized("FirstSteps", "Hit %n times.", "", hits);
    if (daemonState() != AgentState::Running)
        return localized("FirstSteps", "It begins once Korvex runs.");
    return prefs.on ? "" : localized("FirstSteps", "It begins once Korvex is on.");
}

} // namespace

FirstStepsPage::FirstStepsPage(NSWindow window, FirstStepsTarget& target)
    : window_(window), target_(target) {}

FirstStepsPage::~FirstStepsPage() {
    if (closing_)
        RemoveEventLoopTimer(closing_);
    window_.setContentView(nullptr);
}

std::span<const Outlet> FirstStepsPage::outlets() const {
    using P = FirstStepsPage;
    static constexpr Outlet table[] = {
        outletRow<&P::pressView_>("pressView"),
        outletRow<&P::pressWords_>("pressWords"),
        outletRow<&P::scanModeRadios_>("scanModeRadios"),
        outletRow<&P::lineScanTime_>("lineScanTime"),
        outletRow<&P::agentState_>("agentState"),
        outletRow<&P::firstScanWords_>("firstScanWords"),
    };
    return table;
}

std::span<const Action> FirstStepsPage::actions() const {
    using P = FirstStepsPage;
    static constexpr Action table[] = {
        actionRow<&P::changedScanMode>("changedScanMode:"),
        actionRow<&P::findMySpeed>("findMySpeed:"),
        actionRow<&P::showHelp>("showHelp:"),
        actionRow<&P::showAgentHelp>("showAgentHelp:"),
        actionRow<&P::hitByScan>("hitByScan:"),
        actionRow<&P::leave>("leave:"),
    };
    return table;
}

bool FirstStepsPage::show(const std::string& path, std::vector<std::string>& errors) {
    if (!nib_.instantiate(path, *this, errors))
        return false;
    pressView_->setTarget(this);
    const Setting& time = settingAt(offsetof(PrefsRecord, lineScanTime));
    lineScanTime_->setPageSteps(time.limits.pageSteps);
    lineScanTime_->setDoubleKindAt(time.in(prefs), time.limits.step, time.changes,
                                   time.limits.format);
    update();
    answered();
    window_.setContentView(nib_.topLevelView());
    window_.makeFirstResponder(pressView_);
    return true;
}

void FirstStepsPage::update() {
    scanModeRadios_->selectCellWithTag(prefs.scanMode);
    lineScanTime_->update();
    agentState_->setStringValue(agentText());
    firstScanWords_->setStringValue(firstScanText(hits_));
}

void FirstStepsPage::answered() {
    const bool mayScan = pressView_->presses() > 0 && daemonState() == AgentState::Running;
    const std::string wayOn = localized(
        "FirstSteps", "To go on with your switch, wait half a minute: then it scans again.");
    pressWords_->setStringValue(
        joined(Joint::Sentences, {pressView_->words(), mayScan ? wayOn : ""}));
}

void FirstStepsPage::hitByScan(NSButton*) {
    ++hits_;
    update();
}

void FirstStepsPage::changedScanMode(NSMatrix* sender) {
    prefs.scanMode = sender->selectedTag();
    target_.changed(kChangeTriggers);
}

void FirstStepsPage::showHelp(NSButton*) {
    target_.showHelpPage(nullptr);
}

void FirstStepsPage::showAgentHelp(NSButton*) {
    target_.showHelpPage(CFSTR("scanner.html"));
}

void FirstStepsPage::findMySpeed(NSButton* sender) {
    wantsTry_ = true;
    leave(sender);
}

// The page is deleted a moment later: its button is still at work.
void FirstStepsPage::leave(NSButton*) {
    if (closing_)
        return;
    CFPreferencesSetAppValue(seenKey(), kCFBooleanTrue, kAgentBundleID);
    CFPreferencesAppSynchronize(kAgentBundleID);
    InstallEventLoopTimer(GetMainEventLoop(), 0, 0,
                          NewEventLoopTimerUPP([](EventLoopTimerRef, void* self) {
                              static_cast<FirstStepsPage*>(self)->close();
                          }),
                          this, &closing_);
}

void FirstStepsPage::close() {
    FirstStepsTarget& target = target_;
    const NSWindow window = window_;
    const bool wantsTry = wantsTry_;
    firstStepsClose(); // which ends this object
    target.loadValues();
    if (wantsTry)
        target.openTryPage(window);
}

void firstStepsOpen(const CFBundle* bundle, NSWindow window, FirstStepsTarget& target) {
    openPage(page, "firststeps", bundle, window, target);
}

void firstStepsOffer(const CFBundle* bundle, NSWindow window, FirstStepsTarget& target) {
    if (!isAnythingStored() && !CFPreferencesGetAppBooleanValue(seenKey(), kAgentBundleID, nullptr))
        firstStepsOpen(bundle, window, target);
}

void firstStepsUpdate() {
    if (page)
        page->update();
}

void firstStepsClose() {
    closePage(page);
}
