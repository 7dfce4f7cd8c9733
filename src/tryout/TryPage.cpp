// SPDX-License-Identifier: MIT
#include "src/tryout/TryPage.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/settings.h"
#include "src/tryout/HistoryView.h"
#include "src/tryout/tryconditions.h"
#include "src/tryout/words.h"

#include <cstdio>
#include <memory>
#include <random>

namespace {

using Phase = tryout::Session::Phase;

/// The one page; null while it isn't open.
std::unique_ptr<TryPage> page;

std::string withSeconds(const char* form, double seconds) {
    char text[200];
    std::snprintf(text, sizeof text, localized("Try", form).c_str(), seconds);
    return localizedNumbers(text);
}

} // namespace

TryPage::TryPage(NSWindow window, TryPageTarget& target) : window_(window), target_(target) {}

TryPage::~TryPage() {
    if (timer_)
        RemoveEventLoopTimer(timer_);
    if (madeFullScreen_ && window_.isFullScreen())
        window_.toggleFullScreen();
    window_.setContentView(nullptr);
}

std::span<const Outlet> TryPage::outlets() const {
    using P = TryPage;
    static constexpr Outlet table[] = {
        outletRow<&P::tryView_>("tryView"),
        outletRow<&P::historyView_>("historyView"),
        outletRow<&P::course_>("course"),
        outletRow<&P::numbers_>("numbers"),
        outletRow<&P::historyNote_>("historyNote"),
        outletRow<&P::takeBtn_>("takeBtn"),
        outletRow<&P::keepBtn_>("keepBtn"),
        outletRow<&P::againBtn_>("againBtn"),
        outletRow<&P::fullScreenBtn_>("fullScreenBtn"),
        outletRow<&P::leaveBtn_>("leaveBtn"),
        outletRow<&P::exportBtn_>("exportBtn"),
        outletRow<&P::deleteBtn_>("deleteBtn"),
    };
    return table;
}

std::span<const Action> TryPage::actions() const {
    using P = TryPage;
    static constexpr Action table[] = {
        actionRow<&P::leave>("leave:"),
        actionRow<&P::toggleFullScreen>("toggleFullScreen:"),
        actionRow<&P::takeAdvice>("takeAdvice:"),
        actionRow<&P::startAgain>("startAgain:"),
        actionRow<&P::exportHistory>("exportHistory:"),
        actionRow<&P::deleteHistory>("deleteHistory:"),
    };
    return table;
}

bool TryPage::show(const std::string& path, std::vector<std::string>& errors) {
    if (!nib_.instantiate(path, *this, errors))
        return false;
    tryView_->setTarget(this);
    startTry(); // before it is drawn
    window_.setContentView(nib_.topLevelView());
    window_.makeFirstResponder(tryView_);
    const EventTimerInterval interval = 1 / window_.screen().maximumFramesPerSecond;
    InstallEventLoopTimer(GetMainEventLoop(), 0, interval,
                          NewEventLoopTimerUPP([](EventLoopTimerRef, void* self) {
                              static_cast<TryPage*>(self)->frame();
                          }),
                          this, &timer_);
    return true;
}

void TryPage::startTry() {
    trigger_ = tryout::triggerOf(prefs);
    makeSession();
}

/// The part of the screen that the page has is swept as fast as the whole screen will be.
void TryPage::makeSession() {
    const NSScreen screen = window_.screen();
    conditions_ = tryout::conditionsOf(prefs, screen.frame.height, screen.millimetres.height);
    sessionHeight_ = tryView_->bounds().height;
    tryout::Sweep sweep = conditions_.sweep;
    sweep.travel = double{sessionHeight_} * screen.millimetres.height / screen.frame.height;
    sweep.time *= sweep.travel / conditions_.sweep.travel;
    session_.emplace(sweep, conditions_.target, conditions_.delay, trigger_,
                     std::random_device()());
    tryView_->setSession(&*session_);
    shownPhase_.reset();
    showPhase();
}

void TryPage::frame() {
    if (isLeft_)
        return close(); // which ends this object
    const bool hasBegun = session_->sweepIndex() > 0 || session_->phase() != Phase::Ready;
    if (!hasBegun && tryView_->bounds().height != sessionHeight_)
        makeSession();
    session_->advance(GetCurrentEventTime());
    showPhase();
    tryView_->showFrame();
}

void TryPage::showPhase() {
    const Phase phase = session_->phase();
    if (shownPhase_ == phase)
        return;
    shownPhase_ = phase;
    tryView_->setNeedsDisplay(true);
    const bool isDone = phase == Phase::Done;
    for (NSView* view :
         std::initializer_list<NSView*>{takeBtn_, keepBtn_, againBtn_, numbers_, historyView_,
                                        historyNote_, exportBtn_, deleteBtn_})
        view->setHidden(!isDone);
    if (isDone)
        return showResult();
    const std::string text = tryout::courseText(*session_, trigger_);
    course_->setStringValue(text);
    tryView_->setSaying(text);
}

// The keyboard stays at the picture, where presses do nothing now: one press too many takes no
// advice.
void TryPage::showResult() {
    tryout::Measured measured = session_->measured();
    measured.earlierOffsets = earlierOffsets_;
    const tryout::Advice advice = tryout::advise(measured, conditions_);
    advised_ = advice.time;

    const std::string text = tryout::resultText(advice, conditions_, measured);
    course_->setStringValue(text);
    tryView_->setSaying(text);
    numbers_->setStringValue(tryout::detailsText(advice, tryout::steady(measured)));
    const bool isOffered =
        advice.verdict == tryout::Verdict::Change || advice.verdict == tryout::Verdict::TryAgain;
    takeBtn_->setHidden(!isOffered);
    takeBtn_->setTitle(withSeconds(LOCALIZABLE("Try", "Try it at %.1f"), advised_));
    keepBtn_->setTitle(withSeconds(LOCALIZABLE("Try", "Keep %.1f"), conditions_.sweep.time));

    for (const tryout::Trial& trial : measured.trials)
        if (trial.pressed && advice.verdict != tryout::Verdict::Random)
            earlierOffsets_.push_back(trial.offset);
    const bool isStored =
        advice.presses == 0 || history_.add(pastTry(advice, conditions_, measured,
                                                    trigger_.way != tryout::Trigger::Way::Press));
    showHistory(isStored ? "" : localized("Try", "This try couldn’t be stored. "));
}

void TryPage::showHistory(const std::string& note) {
    const bool isEmpty = history_.tries().empty();
    historyView_->setHidden(isEmpty);
    exportBtn_->setHidden(isEmpty);
    deleteBtn_->setHidden(isEmpty);
    historyView_->setTries(history_.tries());
    historyNote_->setStringValue(note + localized("Try", "Your tries stay on this computer."));
}

void TryPage::pressed(double moment) {
    session_->press(moment);
    showPhase();
}

void TryPage::released(double moment) {
    session_->release(moment);
    showPhase();
}

void TryPage::acted(double moment) {
    session_->act(moment);
    showPhase();
}

// The page goes at the next frame: its views are still at work.
void TryPage::left() {
    isLeft_ = true;
}

void TryPage::leave(NSButton*) {
    left();
}

void TryPage::toggleFullScreen(NSButton*) {
    madeFullScreen_ = !window_.isFullScreen();
    window_.toggleFullScreen();
    fullScreenBtn_->setTitle(madeFullScreen_ ? localized("Try", "In the window")
                                             : localized("Try", "Full screen"));
    window_.makeFirstResponder(tryView_);
}

void TryPage::takeAdvice(NSButton*) {
    target_.takeLineScanTime(advised_);
    startAgain(nullptr);
}

void TryPage::startAgain(NSButton*) {
    startTry();
    window_.makeFirstResponder(tryView_);
}

void TryPage::exportHistory(NSButton*) {
    const std::string path = history_.exportCopy();
    showHistory(path.empty() ? localized("Try", "The copy couldn’t be written. ")
                             : filled(localized("Try", "Saved as %1. "), {path}));
}

void TryPage::deleteHistory(NSButton*) {
    const bool isDeleted = history_.clear();
    if (isDeleted)
        window_.makeFirstResponder(againBtn_);
    showHistory(isDeleted ? localized("Try", "All tries are deleted. ")
                          : localized("Try", "The tries couldn’t be deleted. "));
}

void TryPage::close() {
    tryPageClose();
}

void tryPageOpen(const CFBundle* bundle, NSWindow window, TryPageTarget& target) {
    const auto form = bundle
                          ? CFBundleCopyResourceURL(bundle, CFSTR("tryout"), CFSTR("ui"), nullptr)
                          : CFRef<CFURL>();
    if (page || !form)
        return;
    page = std::make_unique<TryPage>(window, target);
    std::vector<std::string> errors;
    if (!page->show(form->path(), errors))
        page.reset();
    for (const std::string& error : errors)
        std::fprintf(stderr, "%s\n", error.c_str());
}

void tryPageClose() {
    page.reset();
}
