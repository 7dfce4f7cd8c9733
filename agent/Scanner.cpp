// SPDX-License-Identifier: MIT
#include "agent/Scanner.h"

#include "agent/Notification.h"
#include "agent/SettingsWindow.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/files/ptrutil.h"
#include "src/record/differences.h"
#include "src/record/keycombo.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

constexpr int kLockLookMs = 1000;
constexpr int kFrameMs = 16;             ///< at 60 frames a second
constexpr double kHalfAFrame = 0.5 / 60; ///< s; a line drawn for then is right in the middle
constexpr double kSecondsAMillisecond = 1e-3;
constexpr double kLongestWait = 24 * 3600; ///< s; more than any phase

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

Scanner::Scanner(Link& link, XServer& server, Guard& guard)
    : link_(link), server_(server), guard_(guard), desktop_(server), switches_(server, *this),
      hand_(server, guard), overlay_(server), settings_(link.settings()) {
    deadline_.setSingleShot(true);
    deadline_.setTimerType(Qt::PreciseTimer);
    frames_.setTimerType(Qt::PreciseTimer);
    frames_.setInterval(kFrameMs);
    QObject::connect(&deadline_, &QTimer::timeout, [this] { follow(); });
    QObject::connect(&frames_, &QTimer::timeout, [this] { frame(); });
    lockLook_.setInterval(kLockLookMs);
    QObject::connect(&lockLook_, &QTimer::timeout, [this] { lookAtLock(); });
    desktop_.onScreens([this] { screensChanged(); });
    desktop_.onLock([this](bool isLocked) { screenLocked(isLocked); });
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
    overlay_.setLook(settings_, scale, pictureOf(settings_.pointerImageName));
    switches_.use(settings_, scale);
    updateSwitches();
}

void Scanner::settingsChanged() {
    const PrefsRecord before = std::exchange(settings_, link_.settings());
    if (endsScan(before, settings_))
        endEverything();
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
    screenLocked(false);
}

Switches::State Scanner::stateOfSwitches() const {
    if (isLocked_ || link_.paneHoldsKeys())
        return Switches::State::Free;
    if (!settings_.on)
        return Switches::State::Off;
    return scan_.isIdle() ? Switches::State::Ready : Switches::State::Scanning;
}

void Scanner::updateSwitches() {
    switches_.setState(stateOfSwitches());
    tellTrouble();
}

void Scanner::tellTrouble() {
    std::vector<std::string> taken;
    for (const int role : switches_.taken()) {
        const HotKey& key = settings_.hotKeys[role];
        const auto name = createKeyComboString(key.modifiers, key.keyCode);
        taken.push_back(name ? toUTF8(name.get()) : "");
    }
    const std::string trouble =
        taken.empty() ? ""
                      : filled(localized("Agent", "Another program has these keys: %1. Choose "
                                                  "others under Presses."),
                               {joined(Joint::Items, taken)});
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
    switchOn(!settings_.on);
}

void Scanner::showSettingsKey() {
    showSettingsWindow();
}

void Scanner::cancelKey() {
    cancel();
}

void Scanner::switchOn(bool on) {
    link_.switchTo(on); // it comes back as settingsChanged
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
        if (!settings_.on)
            switchOn(true);
        break;
    case Signal::Kind::Press:
    case Signal::Kind::Choose:
        if (!settings_.on)
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

/// The scan takes it, or it begins another.
void Scanner::press(const Signal& signal) {
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
    const ScanArea& own = settings_.scanArea;
    if (settings_.useScanArea && isUsable(own))
        around.ownArea = desktop_.inPixels(own.x, own.y, own.width, own.height);
    return regionsOf(settings_, around);
}

void Scanner::start(double moment) {
    if (desktop_.lockWindowIsUp()) {
        screenLocked(true);
        lockLook_.start();
        return;
    }
    scan_.start(regions(), moment);
    guard_.watch();
    frames_.start();
    updateSwitches();
}

void Scanner::choose(Place place) {
    overlay_.hide();
    hand_.click({.place = place, .duration = settings_.clickDuration * kSecondsAMillisecond});
    presses_.clicked(XServer::now());
    sounds_.click();
}

void Scanner::cancel() {
    scan_.cancel();
    follow();
}

void Scanner::endEverything() {
    scan_.cancel();
    presses_.forget();
    hand_.letGo();
    follow();
}

void Scanner::follow() {
    const double now = XServer::now();
    presses_.advance(now);
    for (const Signal& signal : presses_.take())
        act(signal);
    scan_.advance(now);
    if (const auto place = scan_.takeChoice())
        choose(*place);
    if (scan_.isIdle() && frames_.isActive()) {
        frames_.stop();
        guard_.rest();
        overlay_.hide();
        updateSwitches();
    }
    const double next = std::min({presses_.deadline(), scan_.deadline(), now + kLongestWait}) - now;
    if (next < kLongestWait)
        deadline_.start(std::max(0, static_cast<int>(std::ceil(next / kSecondsAMillisecond))));
    else
        deadline_.stop();
}

void Scanner::frame() {
    server_.drain(); // a press that is here already comes before the frame
    guard_.heartbeat();
    follow();
    if (!scan_.isIdle())
        overlay_.show(scan_.pictureAt(XServer::now() + kHalfAFrame));
}
