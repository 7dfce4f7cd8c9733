// SPDX-License-Identifier: MIT
#include "src/tryout/TryPage.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/HotKeyMode.h"
#include "src/controls/page.h"
#include "src/tryout/HistoryView.h"
#include "src/tryout/words.h"

#include <cmath>
#include <cstdio>
#include <memory>
#include <random>

namespace {

using Phase = tryout::Session::Phase;

/// Seconds without any press, after which the page says what counts as one.
constexpr double kFirstPressExpected = 30;

/// The page; null while it isn't open. Never destroyed: an exit handler may end the visit.
auto& page = *new std::unique_ptr<TryPage>;

tryout::Conditions conditionsOn(const NSScreen& screen, tryout::TargetChoice target) {
    return tryout::conditionsOf(prefs, {screen.frame.width, screen.frame.height},
                                {screen.millimetres.width, screen.millimetres.height}, target);
}

/// The stored choice of the target.
const CFString* targetKey() {
    return CFSTR("tryout.target");
}

} // namespace

TryPage::TryPage(NSWindow window, TryPageTarget& target)
    : window_(window), target_(target), targetChoice_(prefsGetUnsignedValue(targetKey())) {}

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
        outletRow<&P::suggestionBtn_>("suggestionBtn"),
        outletRow<&P::targetText_>("targetText"),
        outletRow<&P::targetSmallerBtn_>("targetSmallerBtn"),
        outletRow<&P::targetLargerBtn_>("targetLargerBtn"),
        outletRow<&P::paletteTargetBtn_>("paletteTargetBtn"),
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
        actionRow<&P::takeSuggestion>("takeSuggestion:"),
        actionRow<&P::makeTargetSmaller>("makeTargetSmaller:"),
        actionRow<&P::makeTargetLarger>("makeTargetLarger:"),
        actionRow<&P::takePaletteTarget>("takePaletteTarget:"),
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
    awaitPresses();
    // Timers have whole milliseconds. One frame too many is better than one too few.
    const EventTimerInterval interval =
        std::floor(1000 / window_.screen().maximumFramesPerSecond) / 1000;
    InstallEventLoopTimer(GetMainEventLoop(), 0, interval,
                          NewEventLoopTimerUPP([](EventLoopTimerRef, void* self) {
                              static_cast<TryPage*>(self)->frame();
                          }),
                          this, &timer_);
    return true;
}

/// The focus would scroll to the picture. What to do is read first.
void TryPage::awaitPresses() {
    window_.makeFirstResponder(tryView_);
    course_->scrollToVisible();
}

void TryPage::startTry() {
    const tryout::Trigger trigger = tryout::triggerOf(prefs);
    if (trigger != trigger_)
        earlier_ = {};
    trigger_ = trigger;
    keyboard_.stir(GetCurrentEventTime());
    makeSession();
    shownPhase_.reset();
    showPhase();
}

/// Anew also when the picture's height changes, for example because more is said above it. The page
/// sweeps its part of the screen at the speed that the whole screen will have.
void TryPage::makeSession() {
    const NSScreen screen = window_.screen();
    conditions_ = conditionsOn(screen, targetChoice_);
    sessionHeight_ = tryView_->bounds().height;
    Sweep sweep = conditions_.sweep;
    const double scale = double{screen.frame.height} / screen.millimetres.height;
    sweep.travel = sessionHeight_ / scale;
    sweep.time *= sweep.travel / conditions_.sweep.travel;
    session_.emplace(sweep, conditions_.target, conditions_.delay, trigger_,
                     std::random_device()());
    tryView_->setSession(&*session_, scale);
}

bool TryPage::hasBegun() const {
    return session_->sweepIndex() > 0 || session_->phase() != Phase::Ready;
}

void TryPage::frame() {
    if (isLeft_)
        return close(); // which ends this object
    const double now = GetCurrentEventTime();
    if (!hasBegun() && tryView_->bounds().height != sessionHeight_)
        makeSession();
    session_->advance(now);
    showPhase();
    // A key that repeats looks like one press only while the keys are held.
    const bool isPressed = session_->isPressed();
    keyboard_.update(now, session_->phase() != Phase::Done || isPressed, isPressed,
                     window_.isKeyWindow());
    showQuiet(now);
    tryView_->showFrame();
}

void TryPage::showQuiet(double now) {
    if (session_->phase() != Phase::Ready)
        return;
    if (hasBegun() && keyboard_.isResting(now))
        say(tryout::restText());
    if (!hasBegun() && keyboard_.quietFor(now) > kFirstPressExpected)
        say(tryout::noPressText(trigger_));
}

void TryPage::showPhase() {
    const Phase phase = session_->phase();
    if (shownPhase_ == phase)
        return;
    shownPhase_ = phase;
    tryView_->setNeedsDisplay(true);
    if (phase == Phase::Left)
        return left();
    const bool isDone = phase == Phase::Done;
    for (NSView* view :
         std::initializer_list<NSView*>{takeBtn_, suggestionBtn_, keepBtn_, againBtn_, numbers_,
                                        historyView_, historyNote_, exportBtn_, deleteBtn_})
        view->setHidden(!isDone);
    showTarget();
    if (isDone)
        return showResult();
    showCourse();
}

/// What became of the last sweep stays in sight, but is heard once.
void TryPage::showCourse() {
    const std::string course = tryout::courseText(*session_, trigger_);
    const std::string hint =
        joined(Joint::Sentences, {tryout::leaveText(trigger_),
                                  desktopKeepsItsShortcuts() ? tryout::sharedKeysText() : ""});
    numbers_->setHidden(false);
    numbers_->setStringValue(hint);
    tryView_->setSaying(hasBegun() ? course : joined(Joint::Sentences, {course, hint}));
    const bool isAfterSweep = session_->phase() == Phase::Ready && hasBegun();
    write(isAfterSweep ? tryout::lastText(*session_) + '\n' + course : course);
}

/// Above the picture. Where not all has room it is scrolled into sight.
void TryPage::write(const std::string& text) {
    if (text == course_->stringValue())
        return;
    course_->setStringValue(text);
    course_->scrollToVisible();
}

void TryPage::say(const std::string& text) {
    write(text);
    tryView_->setSaying(text);
}

bool TryPage::wakesUp(double moment) {
    const bool wasResting =
        session_->phase() == Phase::Ready && keyboard_.isResting(GetCurrentEventTime());
    keyboard_.stir(moment);
    if (wasResting)
        showCourse();
    return wasResting;
}

void TryPage::pressed(double moment) {
    if (wakesUp(moment))
        return;
    session_->press(moment);
    showPhase();
}

void TryPage::released(double moment) {
    keyboard_.stir(moment);
    session_->release(moment);
    showPhase();
}

void TryPage::acted(double moment) {
    if (wakesUp(moment))
        return;
    session_->act(moment);
    showPhase();
}

// The page is deleted at the next frame: its views are still at work.
void TryPage::left() {
    keepUnfinished();
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
    awaitPresses();
    if (session_->phase() != Phase::Done)
        startTry(); // on what there is to sweep now
}

void TryPage::takeAdvice(NSButton*) {
    target_.takeTime(settingAt(offsetof(PrefsRecord, lineScanTime)), advised_);
    startAgain(nullptr);
}

void TryPage::startAgain(NSButton*) {
    startTry();
    awaitPresses();
}

void TryPage::makeTargetSmaller(NSButton*) {
    setTarget(tryout::nextTarget(conditions_.target, false));
}

void TryPage::makeTargetLarger(NSButton*) {
    setTarget(tryout::nextTarget(conditions_.target, true));
}

void TryPage::takePaletteTarget(NSButton*) {
    setTarget(tryout::kPaletteTarget);
    window_.makeFirstResponder(hasBegun() ? againBtn_ : static_cast<NSView*>(tryView_));
}

/// A finished try isn't changed.
void TryPage::setTarget(tryout::TargetChoice choice) {
    targetChoice_ = choice;
    prefsSetUnsignedValue(targetKey(), choice);
    if (hasBegun())
        conditions_ = conditionsOn(window_.screen(), targetChoice_);
    else
        makeSession();
    showTarget();
}

void TryPage::close() {
    tryPageClose();
}

void tryPageOpen(const CFBundle* bundle, NSWindow window, TryPageTarget& target) {
    openPage(page, "tryout", bundle, window, target);
}

void tryPageClose() {
    closePage(page);
}
