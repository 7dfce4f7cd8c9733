// SPDX-License-Identifier: MIT
#include "agent/wayland/ShortcutSwitches.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/scan/switchevent.h"
#include "src/store/prefs.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr const char* kHeardKey = "agent.shortcutHeard";
constexpr const char* kHeard[] = {"", "press", "release"}; ///< as it is stored

/// As the record has its hot keys.
enum Key : UInt32 { OnOff, Scan, Cancel, ShowSettings, SecondScan };

} // namespace

ShortcutSwitches::ShortcutSwitches(Listener& listener) : listener_(listener) {
    const auto stored = CFPreferencesCopyAppValue(CFSTR(kHeardKey), kAgentBundleID);
    const auto* const text = dynamicCFCast<CFString>(stored.get());
    const auto* const found = std::ranges::find(kHeard, text ? toUTF8(text) : "");
    heard_ = static_cast<Heard>(found == std::end(kHeard) ? 0 : found - std::begin(kHeard));
    AEInstallEventHandler(kSwitchEventClass, kSwitchEventID, handle, this);
}

ShortcutSwitches::~ShortcutSwitches() {
    AERemoveEventHandler(kSwitchEventClass, kSwitchEventID, handle);
}

void ShortcutSwitches::use(const PrefsRecord& record, double) {
    needsRelease_ = record.scanMode != 0 || record.minTriggerDuration > 0;
}

std::string ShortcutSwitches::trouble() const {
    if (heard_ == Heard::Nothing)
        return localized("Agent", "Korvex hears no switch yet: the desktop's shortcuts must tell "
                                  "it of presses. The help says how, under \"On Wayland\".");
    if (heard_ == Heard::Presses && needsRelease_)
        return localized("Agent", "The desktop doesn't tell when your switch comes up. Only "
                                  "\"Press to start, press to choose\" works, with short presses.");
    return {};
}

OSErr ShortcutSwitches::handle(const AppleEvent* event, AppleEvent*, void* self) {
    return static_cast<ShortcutSwitches*>(self)->hear(*event);
}

void ShortcutSwitches::setState(State state) {
    state_ = state;
    if (state == State::Free)
        held_.clear();
}

OSErr ShortcutSwitches::hear(const AppleEvent& event) {
    SwitchEvent told{};
    if (const OSErr error = readSwitchEvent(event, told))
        return error;
    const Heard before = heard_;
    take(told.key, told.isDown, told.moment);
    if (heard_ != before) {
        CFPreferencesSetAppValue(CFSTR(kHeardKey), CFSTR(kHeard[static_cast<std::size_t>(heard_)]),
                                 kAgentBundleID);
        CFPreferencesAppSynchronize(kAgentBundleID);
    }
    return noErr;
}

void ShortcutSwitches::take(UInt32 key, bool isDown, double moment) {
    if (!isDown)
        heard_ = Heard::Releases;
    if (state_ == State::Free)
        return;
    if (isDown)
        return press(key, moment);
    released_[key] = moment;
    letGo(key, moment);
}

void ShortcutSwitches::press(UInt32 key, double moment) {
    const double before = std::exchange(pressed_[key], moment);
    const bool wasLetGo = released_[key] >= before;
    if (!wasLetGo && moment - before < kRepeat)
        return;
    if (!wasLetGo || heard_ == Heard::Nothing)
        heard_ = Heard::Presses;
    letGo(key, moment);
    held_.insert(key);
    tellPress(key, moment);
    if (const double released = released_[key]; released > moment)
        letGo(key, released);
    else if (heard_ == Heard::Presses)
        letGo(key, moment);
}

void ShortcutSwitches::tellPress(UInt32 key, double moment) {
    switch (key) {
    case OnOff:
        return listener_.onOffKey();
    case Cancel:
        return state_ == State::Scanning ? listener_.cancelKey() : void();
    case ShowSettings:
        return listener_.showSettingsKey();
    case Scan:
        return listener_.switchDown(Switch::First, moment);
    case SecondScan:
        return listener_.switchDown(Switch::Second, moment);
    }
}

void ShortcutSwitches::letGo(UInt32 key, double moment) {
    if (held_.erase(key) == 0)
        return;
    if (key == Scan)
        listener_.switchUp(Switch::First, moment);
    else if (key == SecondScan)
        listener_.switchUp(Switch::Second, moment);
}
