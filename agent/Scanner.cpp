// SPDX-License-Identifier: MIT
#include "agent/Scanner.h"

#include "agent/Notification.h"
#include "agent/SettingsWindow.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"
#include "src/files/ptrutil.h"
#include "src/record/differences.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int kLockLookMs = 1000;
constexpr int kHeartMs = 500;
constexpr int kFrameMs = 16;             ///< at 60 frames a second
constexpr double kHalfAFrame = 0.5 / 60; ///< s; a line drawn for then is right in the middle
constexpr double kSecondsAMillisecond = 1e-3;
constexpr double kLongestWait = 24 * 3600; ///< s; more than any phase
constexpr double kFaultTime = 2;           ///< s; how long a fault is to be read

/// The pointer's picture; an unknown one as "default".
PointerImage pictureOf(const char* name) {
    PointerImage picture;
    if (!ptrutilLoadPointerFromBundle(CFBundleGetMainBundle(), name, &picture))
        ptrutilLoadPointerFromBundle(CFBundleGetMainBundle(), "default", &picture);
    return picture;
}

/// Whether a scan that is under way doesn't fit the new settings: another region, other triggers.
bool endsScan(const PrefsRecord& before, const PrefsRecord& after) {
    constexpr ChangeMask kEnding = kChangeTriggers | kChangeScanArea;
    return !after.on || before.canScanMenuBar != after.canScanMenuBar ||
           (changesOf(differences(before, after)) & kEnding) != 0;
}

} // namespace

Scanner::Scanner(Link& link, Session& session, Guard& guard)
    : link_(link), session_(session), guard_(guard), desktop_(session.desktop()),
      hand_(session.hand()), switches_(session.makeSwitches(*this)),
      lock_([this](bool isLocked) { screenLocked(isLocked); }), deeds_(session, *this),
      palette_(session.overlays(), actions_), overlay_(session.overlays()),
      snapping_(session.windows()), settings_(link.settings()) {
    deadline_.setSingleShot(true);
    deadline_.setTimerType(Qt::PreciseTimer);
    frames_.setTimerType(Qt::PreciseTimer);
    frames_.setInterval(kFrameMs);
    QObject::connect(&deadline_, &QTimer::timeout, [this] { follow(); });
    QObject::connect(&frames_, &QTimer::timeout, [this] { frame(); });
    heart_.setInterval(kHeartMs);
    QObject::connect(&heart_, &QTimer::timeout, [this] {
        guard_.heartbeat();
        follow();
    });
    lockLook_.setInterval(kLockLookMs);
    QObject::connect(&lockLook_, &QTimer::timeout, [this] { lookAtLock(); });
    desktop_.onScreens([this] { screensChanged(); });
    desktop_.onActiveWindow([this] { activeWindowChanged(); });
    link_.setListener(this);
    useSettings();
}

Scanner::~Scanner() {
    link_.setListener(nullptr);
}

void Scanner::useSettings() {
    const double scale = desktop_.screens().front().scale;
    presses_.setRules(PressRules(settings_));
    scan_.setRules(ScanRules(settings_));
    sounds_.use(settings_);
    actions_.setRepeatTime(settings_.autoRepeatTime);
    palette_.use(settings_);
    overlay_.setLook(settings_, scale, pictureOf(settings_.pointerImageName));
    switches_->use(settings_, scale);
    updateSwitches();
}

void Scanner::settingsChanged() {
    const PrefsRecord before = std::exchange(settings_, link_.settings());
    if (before.on != settings_.on)
        isPaused_ = false;
    if (endsScan(before, settings_))
        endEverything();
    actions_.press();
    useSettings();
    if (!scan_.isIdle())
        scan_.setTimes(regions());
    if (before.on && !settings_.on)
        notify(localized("Agent", "Scanning is off. Hold your switch for four seconds to switch it "
                                  "on again."));
    follow();
}

void Scanner::paneHoldsKeys(bool) {
    endEverything();
    updateSwitches();
}

void Scanner::screensChanged() {
    endEverything();
    useSettings();
}

/// What repeats was meant for the other window.
void Scanner::activeWindowChanged() {
    actions_.press();
    follow();
}

void Scanner::screenLocked(bool isLocked) {
    isLocked_ = isLocked;
    endEverything();
    updateSwitches();
}

/// A lock that tells nobody was found by a press, and its end is looked for.
void Scanner::lookAtLock() {
    if (desktop_.lockWindowIsUp())
        return;
    lockLook_.stop();
    updateSwitches();
}

Switches::State Scanner::stateOfSwitches() const {
    if (isLocked_ || lockLook_.isActive() || link_.paneHoldsKeys())
        return Switches::State::Free;
    if (!isActive())
        return Switches::State::Off;
    return scan_.isIdle() ? Switches::State::Ready : Switches::State::Scanning;
}

void Scanner::updateSwitches() {
    switches_->setState(stateOfSwitches());
    tellTrouble();
}

void Scanner::tellTrouble() {
    const std::string trouble = switches_->trouble();
    if (!trouble.empty() && trouble != toldTrouble_)
        notify(trouble);
    toldTrouble_ = trouble;
    link_.setTrouble(trouble);
}

void Scanner::switchDown(Switch which, double moment) {
    presses_.advance(moment);
    presses_.down(which, moment);
    follow();
}

void Scanner::switchUp(Switch which, double moment) {
    presses_.advance(moment);
    presses_.up(which, moment);
    follow();
}

void Scanner::onOffKey() {
    switchOn(!isActive());
}

void Scanner::showSettingsKey() {
    showSettingsWindow();
}

void Scanner::cancelKey() {
    cancel();
}

void Scanner::switchOn(bool on) {
    isPaused_ = false;
    if (settings_.on != on)
        link_.switchTo(on); // it comes back as settingsChanged
    updateSwitches();
    if (on)
        notify(localized("Agent", "Scanning is on."));
}

void Scanner::act(const Signal& signal) {
    const bool isCancel =
        signal.which == Switch::SecondButton && settings_.scanMode != SInt32(ScanMode::Step);
    switch (signal.kind) {
    case Signal::Kind::End:
        endEverything();
        break;
    case Signal::Kind::Wake:
        if (!isActive())
            switchOn(true);
        break;
    case Signal::Kind::Press:
    case Signal::Kind::Choose:
        if (!isActive())
            break;
        if (isCancel && !scan_.isIdle())
            cancel();
        else
            press(signal);
        break;
    case Signal::Kind::Release:
        scan_.signal(signal);
        break;
    }
}

/// It ends what repeats, or the scan takes it, or it begins another.
void Scanner::press(const Signal& signal) {
    if (actions_.press())
        return;
    if (!scan_.isIdle() && scan_.signal(signal))
        return;
    if (const auto place = scan_.takeChoice())
        choose(*place);
    if (scan_.isIdle())
        start(signal.moment);
}

std::vector<Region> Scanner::regions() const {
    Surroundings around;
    around.screens = desktop_.screens();
    around.pointer = desktop_.pointer();
    around.menus = desktop_.openMenus();
    deeds_.addTo(around);
    return regionsOf(settings_, around);
}

void Scanner::start(double moment) {
    if (desktop_.lockWindowIsUp()) {
        lockLook_.start();
        endEverything();
        updateSwitches();
        return;
    }
    scan_.start(regions(), moment);
    hasOutcome_ = false;
    frames_.start();
    updateSwitches();
}

void Scanner::choose(Place place) {
    hasOutcome_ = true;
    overlay_.hide();
    const double now = monotonicNow();
    if (const auto action = palette_.actionAt(scan_.region(), place)) {
        const bool wasOn = actions_.isOn(*action);
        actions_.chooseButton(*action, now);
        if (actions_.isOn(*action) != wasOn)
            sounds_.arm();
    } else {
        const auto target = targetAt(place);
        actions_.choosePoint(target ? target->middle() : place, now);
    }
    carryOut();
}

/// Of a click. What is dragged, moved or scrolled has its own place.
std::optional<Area> Scanner::targetAt(Place place) const {
    return actions_.clicks() ? snapping_.targetAt(place) : std::nullopt;
}

void Scanner::carryOut() {
    for (const Deed& deed : actions_.take()) {
        const std::string fault = deeds_.carryOut(deed, settings_);
        if (fault.empty())
            sound(deed);
        else
            cantDo(fault);
    }
}

/// It is heard, and read beside the palette. What repeats can't be done again either.
void Scanner::cantDo(const std::string& why) {
    actions_.press();
    sounds_.refuse();
    fault_ = why;
    faultEnd_ = monotonicNow() + kFaultTime;
    follow();
}

void Scanner::scanNow() {
    if (stateOfSwitches() == Switches::State::Ready && !actions_.repeats())
        start(monotonicNow());
    follow();
}

void Scanner::pause() {
    isPaused_ = true;
    notify(localized("Agent", "Scanning pauses. Hold your switch for four seconds to go on."));
    endEverything();
    updateSwitches();
}

void Scanner::change(const SettingSet& settings, const PrefsRecord& record) {
    link_.change(settings, record);
}

void Scanner::sound(const Deed& deed) {
    switch (deed.kind) {
    case Deed::Kind::Click:
        presses_.clicked(monotonicNow());
        sounds_.click();
        break;
    case Deed::Kind::ButtonDown:
        sounds_.pickUp();
        break;
    case Deed::Kind::ButtonUp:
    case Deed::Kind::GiveUp:
        sounds_.drop();
        break;
    default:
        break;
    }
}

void Scanner::cancel() {
    hasOutcome_ = true;
    scan_.cancel();
    actions_.cancel();
    deeds_.closeList();
    follow();
}

/// What was picked up stays where it is: Escape might reach whoever has the keys now.
void Scanner::endEverything() {
    hasOutcome_ = true;
    scan_.cancel();
    actions_.cancel();
    actions_.take();
    presses_.forget();
    deeds_.letGo();
    follow();
}

void Scanner::follow() {
    const double now = monotonicNow();
    presses_.advance(now);
    for (const Signal& signal : presses_.take())
        act(signal);
    scan_.advance(now);
    if (const auto place = scan_.takeChoice())
        choose(*place);
    actions_.advance(now);
    carryOut();
    if (now >= faultEnd_)
        fault_.clear();
    if (scan_.isIdle() && frames_.isActive()) {
        frames_.stop();
        overlay_.hide();
        snapping_.forget();
        if (!hasOutcome_)
            deeds_.scanRanOut(settings_);
        updateSwitches();
    }
    if (scan_.isIdle())
        showPalette();
    letBeWatched();
    const double next = std::min({presses_.deadline(), scan_.deadline(), actions_.deadline(),
                                  fault_.empty() ? kLongestWait + now : faultEnd_}) -
                        now;
    if (next < kLongestWait)
        deadline_.start(std::max(0, static_cast<int>(std::ceil(next / kSecondsAMillisecond))));
    else
        deadline_.stop();
}

/// While it would do harm to hang: a line is on the screen, or something is held or repeats.
void Scanner::letBeWatched() {
    const bool isNeeded =
        !scan_.isIdle() || hand_.holdsAnything() || actions_.holds() || actions_.repeats();
    if (isNeeded == heart_.isActive())
        return;
    if (isNeeded) {
        guard_.watch();
        heart_.start();
    } else {
        guard_.rest();
        heart_.stop();
    }
}

void Scanner::frame() {
    session_.drain(); // a press that is here already comes before the frame
    follow();
    if (scan_.isIdle())
        return;
    Picture picture = scan_.pictureAt(monotonicNow() + kHalfAFrame);
    std::optional<Place> pointer;
    if (picture.pointer && picture.guide)
        pointer = {*picture.pointer, *picture.guide};
    if (pointer && !palette_.actionAt(picture.region, *pointer))
        picture.target = targetAt(*pointer);
    const OverlayWindow* lowest = overlay_.show(picture);
    if (picture.guide)
        snapping_.followLine(picture.region, *picture.guide);
    palette_.show(picture.region, pointer, fault_, lowest);
}

/// Without a scan it is seen while an action repeats, and beside a fault.
void Scanner::showPalette() {
    if (actions_.repeats() || !fault_.empty())
        palette_.show(scan_.region(), {}, fault_, nullptr);
    else
        palette_.hide();
}
