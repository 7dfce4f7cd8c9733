// SPDX-License-Identifier: MIT
#include "agent/Deeds.h"

#include "agent/Terminals.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"
#include "src/record/settingwords.h"

#include <algorithm>
#include <utility>

namespace {

constexpr int kMainButton = 1, kMenuButton = 3, kWheelUp = 4, kWheelDown = 5;
constexpr int kNotches = 3; ///< of the wheel, as many lines as a page keeps in sight

constexpr double kSecondsAMillisecond = 1e-3;

/// A program takes what is dragged up when the pointer has left the place where the button went
/// down, and asks what lies below it before it lets go of it. Toolkits want more than eight pixels.
constexpr int kDragSteps = 12;
constexpr double kDragStep = 0.02; ///< s, as are the next ones
constexpr double kBeforeDrag = 0.05;
constexpr double kBeforeDrop = 0.15;

constexpr int kVolumeStep = 5; ///< percent, as keyboards' keys have it

constexpr int kKeysUpMs = 5;        ///< between two looks whether the user's keys are up
constexpr double kKeysUpAtMost = 1; ///< s; then they count as meant

Place between(Place from, Place to, double part) {
    return {from.x + (to.x - from.x) * part, from.y + (to.y - from.y) * part};
}

} // namespace

Deeds::Deeds(Session& session, Listener& listener)
    : hand_(session.hand()), typist_(session.typist()), windows_(session.windows()),
      listener_(listener), volume_([this](const std::string& why) { listener_.cantDo(why); }),
      typing_(
          session.keyboard(), windows_, [this] { listener_.scanNow(); },
          [this](const std::string& why) { listener_.cantDo(why); }),
      openers_(
          session, [this] { listener_.scanNow(); },
          [this](const std::string& why) { listener_.cantDo(why); }) {
    keysUp_.setInterval(kKeysUpMs);
    QObject::connect(&keysUp_, &QTimer::timeout, [this] { lookForUsersKeys(); });
}

Deeds::~Deeds() {
    letGo();
}

void Deeds::letGo() {
    keysUp_.stop();
    ++act_;
    sequence_.clear();
    openers_.close();
    hand_.letGo();
}

void Deeds::addTo(Surroundings& around) const {
    around.keyboard = typing_.keyboard();
    if (const auto list = openers_.list())
        around.menus.insert(around.menus.begin(), *list);
}

void Deeds::scanRanOut(const PrefsRecord& settings) {
    openers_.close();
    if (settings.lineScanCanEndKybdMode)
        typing_.end();
}

std::string Deeds::carryOut(const Deed& deed, const PrefsRecord& settings) {
    switch (deed.kind) {
    case Deed::Kind::Click:
        click(deed, settings);
        break;
    case Deed::Kind::ButtonDown:
        pickUp(deed.place);
        break;
    case Deed::Kind::ButtonUp:
        drop(deed.place);
        break;
    case Deed::Kind::Move:
        moveTo(deed.place);
        break;
    case Deed::Kind::GiveUp:
        giveUp(deed.place);
        break;
    case Deed::Kind::Scroll:
        scroll(deed.place);
        break;
    case Deed::Kind::Action:
        settings_ = settings;
        return act(kActionRows[deed.action]);
    }
    return {};
}

// At a place -------------------------------------------------------------------------------------

void Deeds::click(const Deed& deed, const PrefsRecord& settings) {
    std::vector<std::uint8_t> modifiers;
    for (const auto& [isWanted, name] :
         {std::pair(deed.shift, "Shift_L"), {deed.control, "Control_L"}})
        if (const auto code = isWanted ? typist_.keyNamed(name) : std::nullopt)
            modifiers.push_back(*code);
    const Hand::Click click = {.place = deed.place,
                               .button =
                                   deed.click == ActionKind::RightClick ? kMenuButton : kMainButton,
                               .count = deed.click == ActionKind::DoubleClick ? 2 : 1,
                               .duration = settings.clickDuration * kSecondsAMillisecond,
                               .pause = settings.interClickDelay * kSecondsAMillisecond};
    afterUsersKeys();
    sequence_.add(
        [=, this] {
            for (const std::uint8_t code : modifiers)
                hand_.keyDown(code);
            hand_.click(click, [=, this] {
                for (const std::uint8_t code : modifiers)
                    hand_.keyUp(code);
                sequence_.next();
            });
        },
        Sequence::kUntilNext);
}

void Deeds::pickUp(Place place) {
    afterUsersKeys();
    sequence_.add([=, this] { hand_.move(place); }, kBeforeDrag);
    sequence_.add([this] { hand_.buttonDown(kMainButton); }, kBeforeDrag);
    held_ = place;
}

/// What is held moves along, as a hand would move it.
void Deeds::moveTo(Place place) {
    if (!held_)
        return sequence_.add([=, this] { hand_.move(place); });
    for (int step = 1; step <= kDragSteps; ++step) {
        const Place on = between(*held_, place, static_cast<double>(step) / kDragSteps);
        sequence_.add([=, this] { hand_.move(on); }, kDragStep);
    }
    held_ = place;
}

void Deeds::drop(Place place) {
    sequence_.add([=, this] { hand_.move(place); }, kBeforeDrop);
    sequence_.add([this] { hand_.buttonUp(kMainButton); });
    held_.reset();
}

/// Programs give a drag up at Escape.
void Deeds::giveUp(Place place) {
    sequence_.add([=, this] {
        typist_.type("Escape");
        hand_.move(place);
        hand_.buttonUp(kMainButton);
    });
    held_.reset();
}

void Deeds::scroll(Place place) {
    const bool isUp = place.y < windows_.windowAt(place).middle().y;
    afterUsersKeys();
    sequence_.add([=, this] {
        hand_.move(place);
        for (int notch = 0; notch < kNotches; ++notch) {
            hand_.buttonDown(isUp ? kWheelUp : kWheelDown);
            hand_.buttonUp(isUp ? kWheelUp : kWheelDown);
        }
    });
}

/// A switch such as Super with Enter is still down when its press counts: what is done with Super
/// held is something else. And what the scan has shown must be gone.
void Deeds::afterUsersKeys() {
    sequence_.add(
        [this] {
            hand_.whenOverlaysAreGone([this, act = act_] {
                if (act == act_) // it wasn't dropped meanwhile
                    sequence_.next();
            });
        },
        Sequence::kUntilNext);
    sequence_.add(
        [this] {
            keysUpUntil_ = monotonicNow() + kKeysUpAtMost;
            lookForUsersKeys();
        },
        Sequence::kUntilNext);
}

void Deeds::lookForUsersKeys() {
    if (typist_.modifierIsDown() && monotonicNow() < keysUpUntil_)
        return keysUp_.start();
    keysUp_.stop();
    sequence_.next();
}

// At once ----------------------------------------------------------------------------------------

std::string Deeds::act(const ActionRow& row) {
    constexpr std::pair<ActionKind, Doer> kDoers[] = {
        {ActionKind::Keys, &Deeds::keys},       {ActionKind::Close, &Deeds::close},
        {ActionKind::Desktop, &Deeds::desktop}, {ActionKind::Louder, &Deeds::louder},
        {ActionKind::Quieter, &Deeds::quieter}, {ActionKind::Mute, &Deeds::mute},
        {ActionKind::Faster, &Deeds::faster},   {ActionKind::Slower, &Deeds::slower},
        {ActionKind::Pause, &Deeds::pause},     {ActionKind::Type, &Deeds::type},
        {ActionKind::Menus, &Deeds::menus},     {ActionKind::Apps, &Deeds::apps},
        {ActionKind::Windows, &Deeds::windows},
    };
    const auto* const found =
        std::find_if(std::begin(kDoers), std::end(kDoers),
                     [&](const auto& doer) { return doer.first == row.kind; });
    return found == std::end(kDoers) ? std::string() : (this->*found->second)(row);
}

std::string Deeds::keys(const ActionRow& row) {
    const auto active = windows_.active();
    const auto [keys, fault] = shortcutIn(active ? windows_.programOf(*active) : "", row.keys);
    if (!fault.empty())
        return fault;
    afterUsersKeys();
    sequence_.add([this, keys = keys] { typist_.type(keys); });
    return {};
}

std::string Deeds::close(const ActionRow&) {
    const auto active = windows_.active();
    if (!active)
        return localized("Agent", "No window is active.");
    return windows_.close(*active)
               ? ""
               : localized("Agent", "The window manager can't close windows for others.");
}

std::string Deeds::desktop(const ActionRow&) {
    return windows_.toggleDesktop()
               ? ""
               : localized("Agent", "The window manager can't show the desktop.");
}

std::string Deeds::type(const ActionRow&) {
    typing_.toggle();
    return {};
}

std::string Deeds::menus(const ActionRow&) {
    afterUsersKeys();
    sequence_.add([this] { openers_.menus(); });
    return {};
}

std::string Deeds::apps(const ActionRow&) {
    afterUsersKeys();
    sequence_.add([this] { openers_.applications(); });
    return {};
}

std::string Deeds::windows(const ActionRow&) {
    openers_.windows();
    return {};
}

std::string Deeds::louder(const ActionRow&) {
    volume_.change(kVolumeStep);
    return {};
}

std::string Deeds::quieter(const ActionRow&) {
    volume_.change(-kVolumeStep);
    return {};
}

std::string Deeds::mute(const ActionRow&) {
    volume_.toggleMute();
    return {};
}

std::string Deeds::faster(const ActionRow&) {
    return changeTimes(-1) ? "" : localized("Agent", "The scan is as fast as it can be.");
}

std::string Deeds::slower(const ActionRow&) {
    return changeTimes(1) ? "" : localized("Agent", "The scan is as slow as it can be.");
}

/// Of both sweeps, by their steps. False when both are at their limits.
bool Deeds::changeTimes(int steps) {
    PrefsRecord record = settings_;
    for (const std::size_t field :
         {offsetof(PrefsRecord, lineScanTime), offsetof(PrefsRecord, pointerScanTime)}) {
        const Setting& setting = settingAt(field);
        const SettingLimits& limits = setting.limits;
        const double wanted = settingNumber(setting, record) + steps * limits.step;
        setSettingNumber(setting, std::clamp(wanted, limits.minimum, limits.maximum), record);
    }
    const SettingSet changed = differences(settings_, record);
    if (changed.any())
        listener_.change(changed, record);
    return changed.any();
}

std::string Deeds::pause(const ActionRow&) {
    listener_.pause();
    return {};
}
