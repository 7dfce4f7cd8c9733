// SPDX-License-Identifier: MIT
#include "src/tryout/TryPage.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/record/settingwords.h"
#include "src/scan/snapping.h"
#include "src/tryout/HistoryView.h"
#include "src/tryout/words.h"

#include <cstdio>

namespace {

using Phase = tryout::Session::Phase;

std::string withSeconds(const char* sentence, double seconds) {
    char text[200];
    std::snprintf(text, sizeof text, localized("Try", sentence).c_str(), seconds);
    return localizedNumbers(text);
}

} // namespace

// The focus stays at the picture, where presses do nothing now. So one press too many takes no
// advice.
void TryPage::showResult() {
    tryout::Measured measured = session_->measured();
    measured.earlier = earlier_;
    const tryout::Advice advice = tryout::advise(measured, conditions_);
    const tryout::Steadiness steadiness = tryout::steady(measured);
    advised_ = advice.time;

    say(tryout::resultText(advice, conditions_, measured, trigger_.way));
    numbers_->setStringValue(tryout::detailsText(advice, steadiness));
    const bool isOffered =
        advice.verdict == tryout::Verdict::Change || advice.verdict == tryout::Verdict::TryAgain;
    takeBtn_->setHidden(!isOffered);
    takeBtn_->setTitle(withSeconds(LOCALIZABLE("Try", "Use %.1f s and try"), advised_));
    keepBtn_->setTitle(withSeconds(LOCALIZABLE("Try", "Keep %.1f s"), conditions_.sweep.time));
    suggestion_ = tryout::suggestionOf(advice, steadiness, prefs);
    showSuggestion();
    showHistory(keep(advice, measured) ? "" : localized("Try", "This try couldn’t be stored."));
}

void TryPage::showSuggestion() {
    suggestionBtn_->setHidden(!suggestion_);
    if (!suggestion_)
        return;
    const auto& [setting, seconds] = *suggestion_;
    PrefsRecord record = prefs;
    setSettingNumber(*setting, seconds, record);
    suggestionBtn_->setTitle(
        filled(localized("Try", "Set “%1”\nto %2"),
               {localized("Settings", setting->name), settingText(*setting, record)}));
}

/// One change at a time: the next try shows its effect.
void TryPage::takeSuggestion(NSButton*) {
    if (!suggestion_)
        return;
    const auto [setting, seconds] = *suggestion_;
    const PrefsRecord before = prefs;
    target_.takeTime(*setting, seconds);
    suggestion_.reset();
    showSuggestion();
    window_.makeFirstResponder(againBtn_);
    say(filled(localized("Try", "%1. Undo takes it back. Try once more before you change anything "
                                "else."),
               {changeText(*setting, before, prefs, kSettingBecomes)}));
}

bool TryPage::keep(const tryout::Advice& advice, const tryout::Measured& measured) {
    if (advice.verdict != tryout::Verdict::Random) {
        remember(earlier_, measured, conditions_);
        setSpread(advice.timing.spread);
    }
    using enum tryout::Trigger::Way;
    const bool isOnRelease = trigger_.way == Release || trigger_.way == Hold;
    return advice.presses == 0 || history_.add(pastTry(advice, conditions_, measured, isOnRelease));
}

/// A try that is left after enough presses for advice isn't lost.
void TryPage::keepUnfinished() {
    const Phase phase = session_->phase();
    if (isLeft_ || phase == Phase::Done || phase == Phase::Left)
        return;
    const tryout::Advice advice = tryout::advise(session_->measured(), conditions_);
    if (advice.presses >= tryout::kFewestTrials)
        keep(advice, session_->measured());
}

void TryPage::showHistory(const std::string& note) {
    const bool isEmpty = history_.tries().empty();
    historyView_->setHidden(isEmpty);
    exportBtn_->setHidden(isEmpty);
    deleteBtn_->setHidden(isEmpty);
    historyView_->setTries(history_.tries());
    historyNote_->setStringValue(
        joined(Joint::Sentences, {note, localized("Try", "Your tries stay on this computer.")}));
}

void TryPage::exportHistory(NSButton*) {
    const std::string path = history_.exportCopy();
    showHistory(path.empty() ? localized("Try", "The copy couldn’t be written.")
                             : filled(localized("Try", "Saved as %1."), {path}));
}

void TryPage::deleteHistory(NSButton*) {
    const bool isDeleted = history_.clear();
    if (isDeleted) {
        window_.makeFirstResponder(againBtn_);
        setSpread(0);
    }
    showHistory(isDeleted ? localized("Try", "All tries are deleted.")
                          : localized("Try", "The tries couldn’t be deleted."));
}

/// It can be chosen before and after a try.
void TryPage::showTarget() {
    targetText_->setStringValue(
        tryout::targetText(conditions_.target, targetChoice_ == tryout::kPaletteTarget));
    const bool isFree = !hasBegun() || session_->phase() == Phase::Done;
    targetSmallerBtn_->setEnabled(isFree && conditions_.target > tryout::kLeastTarget);
    targetLargerBtn_->setEnabled(isFree && conditions_.target < tryout::kLargestTarget);
    paletteTargetBtn_->setEnabled(isFree && targetChoice_ != tryout::kPaletteTarget);
}
