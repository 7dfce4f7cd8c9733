// SPDX-License-Identifier: MIT
#include "agent/x11/XSwitches.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/ScanCodes.h"
#include "src/record/keycombo.h"

#include <algorithm>
#include <xcb/xtest.h>

namespace {

constexpr std::uint32_t kFirstButton = 1;
constexpr std::uint32_t kSecondButton = 3; ///< the right one

/// No program does anything when these alone go down and up.
constexpr std::uint32_t kQuietModifiers = XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL;

constexpr std::uint32_t kKeysHeard =
    XCB_INPUT_XI_EVENT_MASK_RAW_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_KEY_RELEASE;
constexpr std::uint32_t kButtonsHeard =
    XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_RELEASE;

constexpr std::uint16_t kComesOrGoes =
    XCB_INPUT_HIERARCHY_MASK_SLAVE_ADDED | XCB_INPUT_HIERARCHY_MASK_SLAVE_REMOVED |
    XCB_INPUT_HIERARCHY_MASK_DEVICE_ENABLED | XCB_INPUT_HIERARCHY_MASK_DEVICE_DISABLED;

void selectEvents(XServer& server, xcb_input_device_id_t device, std::uint32_t events) {
    const struct {
        xcb_input_event_mask_t head;
        std::uint32_t events;
    } mask = {{device, 1}, events};

    xcb_input_xi_select_events(server.connection(), server.root(), 1, &mask.head);
}

/// The modifiers that are down, on whatever keyboard.
std::uint32_t modifiersDown(XServer& server) {
    const XReply<xcb_query_pointer_reply_t> reply(xcb_query_pointer_reply(
        server.connection(), xcb_query_pointer(server.connection(), server.root()), nullptr));
    return reply ? reply->mask : 0U;
}

} // namespace

XSwitches::XSwitches(XServer& server, Listener& listener)
    : server_(server), listener_(listener), grabs_(server) {
    server_.onEvent([this](const xcb_generic_event_t& event) { handle(event); });
    selectEvents(server_, XCB_INPUT_DEVICE_ALL, XCB_INPUT_XI_EVENT_MASK_HIERARCHY);
    keys_.read(server_);
    readDevices();
}

XSwitches::~XSwitches() {
    setState(State::Free);
}

void XSwitches::use(const PrefsRecord& record, double scale) {
    record_ = record;
    if (scale != scale_) {
        scale_ = scale;
        motions_.clear();
        readDevices();
    }
    refresh();
}

void XSwitches::setState(State state) {
    state_ = state;
    if (state == State::Free) {
        held_.clear();
        heardOnly_.clear();
    }
    refresh();
}

std::string XSwitches::trouble() const {
    std::vector<std::string> names;
    for (const int role : taken()) {
        const HotKey& key = record_.hotKeys[role];
        const auto name = createKeyComboString(key.modifiers, key.keyCode);
        names.push_back(name ? toUTF8(name.get()) : "");
    }
    return names.empty() ? ""
                         : filled(localized("Agent", "Another program has these keys: %1. Choose "
                                                     "others under Presses."),
                                  {joined(Joint::Items, names)});
}

std::vector<int> XSwitches::taken() const {
    std::vector<int> roles;
    for (const Wanted& one : wanted(state_))
        if (one.isKey && std::ranges::any_of(grabs_.refused(), [&](const Grab& grab) {
                return grab.isKey && grab.code == one.code &&
                       (grab.modifiers & keys_.allModifiers()) == one.modifiers;
            }))
            roles.push_back(one.role);
    roles.erase(std::unique(roles.begin(), roles.end()), roles.end());
    return roles;
}

// What is wanted

bool XSwitches::isWanted(Role role, State state) const {
    const bool isScanning = state == State::Scanning;
    const bool takesSwitches = isScanning || state == State::Ready;
    switch (role) {
    case OnOff:
    case ShowSettings:
        return state != State::Free;
    case Cancel:
        return isScanning;
    case Scan:
    case SecondScan:
        return takesSwitches && record_.wantHotKeyTrigger;
    case MouseButton:
        return takesSwitches && record_.wantMouseClickTrigger;
    case SecondMouseButton:
        return isScanning && record_.fakeMouse2SwitchMode == 1;
    }
    return false;
}

/// Of two with the same key the one that the record has first.
std::vector<XSwitches::Wanted> XSwitches::wanted(State state) const {
    std::vector<Wanted> all;
    for (const Role role : {OnOff, Scan, Cancel, ShowSettings, SecondScan}) {
        const auto& [keyCode, modifiers] = record_.hotKeys[role];
        if (keyCode < 0 || keyCode >= kNoKeyCode || !isWanted(role, state))
            continue;
        for (const std::uint32_t code : scanCodes(static_cast<std::uint16_t>(keyCode)))
            for (const std::uint32_t bits : keys_.modifiers(modifiers))
                all.push_back({role, true, code, bits});
    }
    if (isWanted(MouseButton, state))
        all.push_back({MouseButton, false, kFirstButton, Grab::kAnyModifiers});
    if (isWanted(SecondMouseButton, state))
        all.push_back({SecondMouseButton, false, kSecondButton, Grab::kAnyModifiers});
    return all;
}

const XSwitches::Wanted* XSwitches::find(const std::vector<Wanted>& all, const Press& press) const {
    const auto found = std::ranges::find_if(all, [&](const Wanted& one) {
        return one.isKey == press.button.isKey && one.code == press.button.code &&
               (!one.isKey || one.modifiers == (press.modifiers & keys_.allModifiers()));
    });
    return found == all.end() ? nullptr : &*found;
}

void XSwitches::refresh() {
    std::set<Grab> grabs;
    for (const Wanted& one : wanted(state_))
        for (const InputDevice& device : devices_) {
            if (!(one.isKey ? device.hasKeys : device.hasButtons))
                continue;
            // Its release is the programs', as its press was: else it would repeat there for ever.
            if (heardOnly_.contains({device.id, one.isKey, one.code}))
                continue;
            const auto locks = one.isKey ? keys_.locks() : std::vector{0U};
            for (const std::uint32_t lock : locks)
                grabs.insert({device.id, one.isKey, one.code, one.modifiers | lock});
        }
    grabs_.set(grabs);
    for (const InputDevice& device : devices_)
        select(device);
    server_.flush();
}

/// What is heard only, and the motion of a mouse whose clicks may have to be passed on. At rest
/// none of it comes.
void XSwitches::select(const InputDevice& device) {
    const bool isOff = state_ == State::Off;
    std::uint32_t events = 0;
    if (device.hasKeys && isOff && record_.wantHotKeyTrigger)
        events |= kKeysHeard;
    if (device.hasButtons && isOff && record_.wantMouseClickTrigger)
        events |= kButtonsHeard;
    if (device.hasButtons && state_ == State::Ready && record_.wantMouseClickTrigger)
        events |= XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    for (const Button& button : heardOnly_)
        if (button.device == device.id)
            events |=
                button.isKey ? kKeysHeard : kButtonsHeard | XCB_INPUT_XI_EVENT_MASK_RAW_MOTION;
    if (std::exchange(selected_[device.id], events) != events)
        selectEvents(server_, device.id, events);
}

// What comes in

void XSwitches::handle(const xcb_generic_event_t& event) {
    const int type = event.response_type & 0x7F;
    if (type == XCB_MAPPING_NOTIFY) {
        const KeyMap before = keys_;
        keys_.read(server_);
        if (keys_ != before)
            refresh();
    } else if (type == XCB_GE_GENERIC) {
        const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
        if (generic.extension == server_.inputOpcode())
            handleInput(generic);
    }
}

void XSwitches::handleInput(const xcb_ge_generic_event_t& event) {
    const auto& taken = reinterpret_cast<const xcb_input_key_press_event_t&>(event);
    const auto& raw = reinterpret_cast<const xcb_input_raw_key_press_event_t&>(event);
    const double moment = server_.momentOf(taken.time);
    switch (event.event_type) {
    case XCB_INPUT_KEY_PRESS:
    case XCB_INPUT_BUTTON_PRESS: {
        const bool isKey = event.event_type == XCB_INPUT_KEY_PRESS;
        if (!isKey || !(taken.flags & XCB_INPUT_KEY_EVENT_FLAGS_KEY_REPEAT))
            press({{taken.deviceid, isKey, taken.detail}, taken.mods.effective, moment});
        break;
    }
    case XCB_INPUT_KEY_RELEASE:
    case XCB_INPUT_BUTTON_RELEASE: {
        const Button button = {taken.deviceid, event.event_type == XCB_INPUT_KEY_RELEASE,
                               taken.detail};
        releaseOther(button);
        up(button, moment);
        break;
    }
    case XCB_INPUT_RAW_KEY_PRESS:
        hear({{raw.deviceid, true, raw.detail}, 0, moment});
        break;
    case XCB_INPUT_RAW_BUTTON_PRESS:
        hear({{raw.deviceid, false, raw.detail}, 0, moment});
        break;
    case XCB_INPUT_RAW_KEY_RELEASE:
        up({raw.deviceid, true, raw.detail}, moment);
        break;
    case XCB_INPUT_RAW_BUTTON_RELEASE:
        up({raw.deviceid, false, raw.detail}, moment);
        break;
    case XCB_INPUT_RAW_MOTION:
        moved(reinterpret_cast<const xcb_input_raw_motion_event_t&>(event));
        break;
    case XCB_INPUT_HIERARCHY:
        changeDevices(reinterpret_cast<const xcb_input_hierarchy_event_t&>(event));
        break;
    default:
        break;
    }
}

void XSwitches::readDevices() {
    devices_ = inputDevices(server_);
    for (const InputDevice& device : devices_)
        if (device.hasButtons)
            motions_.try_emplace(device.id, device, server_.screen(), kMoved * scale_);
}

/// What a device that goes away held is let go.
void XSwitches::changeDevices(const xcb_input_hierarchy_event_t& event) {
    if (!(event.flags & kComesOrGoes))
        return;
    std::vector<Button> gone;
    for (auto info = xcb_input_hierarchy_infos_iterator(&event); info.rem > 0;
         xcb_input_hierarchy_info_next(&info)) {
        if (!(info.data->flags & kComesOrGoes))
            continue;
        const auto device = info.data->deviceid;
        grabs_.forget(device);
        motions_.erase(device);
        selected_.erase(device);
        for (const auto& [button, which] : held_)
            if (button.device == device)
                gone.push_back(button);
    }
    readDevices();
    refresh();
    for (const Button& button : gone)
        up(button, server_.momentOf(event.time));
}

/// One that was taken. While a device has a key down, all its keys come.
void XSwitches::press(const Press& press) {
    const auto all = wanted(state_);
    const Wanted* one = find(all, press);
    if (!one && press.button.isKey)
        one = find(all, {press.button, modifiersDown(server_), press.moment});
    if (!one)
        return;
    const auto motion = motions_.find(press.button.device);
    const bool isHelpers = one->role == MouseButton && state_ == State::Ready &&
                           motion != motions_.end() &&
                           press.moment - motion->second.farMoment() <= kMovedSeconds;
    if (isHelpers)
        return passOn(press);
    if (one->isKey && (one->modifiers & ~kQuietModifiers))
        sendUnusedKey();
    switch (one->role) {
    case OnOff:
        listener_.onOffKey();
        break;
    case Cancel:
        listener_.cancelKey();
        break;
    case ShowSettings:
        listener_.showSettingsKey();
        break;
    case Scan:
    case MouseButton:
        down(press, Switch::First);
        break;
    case SecondScan:
        down(press, Switch::Second);
        break;
    case SecondMouseButton:
        down(press, Switch::SecondButton);
        break;
    }
}

/// One that goes to the programs, too.
void XSwitches::hear(const Press& press) {
    if (state_ != State::Off)
        return;
    const auto switches = wanted(State::Ready);
    Press whole = press;
    if (!press.button.isKey && press.button.code != server_.deviceButton(kFirstButton))
        return;
    if (press.button.isKey)
        whole.modifiers = modifiersDown(server_);
    else
        whole.button.code = kFirstButton;
    const Wanted* one = find(switches, whole);
    if (!one || one->role == OnOff || one->role == ShowSettings)
        return;
    heardOnly_.insert(press.button);
    if (const auto motion = motions_.find(press.button.device); motion != motions_.end())
        motion->second.restart(press.moment);
    refresh();
    down(press, one->role == SecondScan ? Switch::Second : Switch::First);
}

void XSwitches::moved(const xcb_input_raw_motion_event_t& event) {
    const auto found = motions_.find(event.deviceid);
    if (found == motions_.end())
        return;
    Motion& motion = found->second;
    const double moment = server_.momentOf(event.time);
    motion.add(event, moment);
    if (motion.distance() < kStill * scale_ && motion.farMoment() != moment)
        return;
    const auto button = std::ranges::find_if(
        heardOnly_, [&](const Button& one) { return one.device == event.deviceid && !one.isKey; });
    if (button != heardOnly_.end())
        up(Button(*button), moment);
}

/// The device is taken until its button comes up: it is given back at once. Programs see the button
/// go down with XTEST's device, and stay down as long as one device holds it, which is then the
/// helper's. The server does all three in one go: they leave with the next flush.
void XSwitches::passOn(const Press& press) {
    send(XCB_BUTTON_PRESS, press.button.code);
    xcb_input_xi_ungrab_device(server_.connection(), XCB_CURRENT_TIME, press.button.device);
    send(XCB_BUTTON_RELEASE, press.button.code);
}

/// So that Super or Alt isn't alone for the programs: many open a menu then.
void XSwitches::sendUnusedKey() {
    if (!keys_.unusedKey())
        return;
    send(XCB_KEY_PRESS, *keys_.unusedKey());
    send(XCB_KEY_RELEASE, *keys_.unusedKey());
}

/// While a key or button is held that was taken, its whole device is. A modifier that is let go
/// then would stay down for the programs. Nothing happens if they don't have it down.
void XSwitches::releaseOther(const Button& button) {
    if (!held_.contains(button))
        send(button.isKey ? XCB_KEY_RELEASE : XCB_BUTTON_RELEASE, button.code);
}

void XSwitches::send(std::uint8_t type, std::uint32_t code) {
    const bool isKey = type == XCB_KEY_PRESS || type == XCB_KEY_RELEASE;
    xcb_test_fake_input(server_.connection(), type,
                        isKey ? static_cast<std::uint8_t>(code) : server_.deviceButton(code),
                        XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
}

void XSwitches::down(const Press& press, Switch which) {
    const bool wasHeld = isHeld(which);
    held_.emplace(press.button, which);
    if (!wasHeld)
        listener_.switchDown(which, press.moment);
}

void XSwitches::up(const Button& button, double moment) {
    const auto found = held_.find(button);
    if (found == held_.end())
        return;
    const Switch which = found->second;
    held_.erase(found);
    if (heardOnly_.erase(button) > 0)
        refresh();
    if (!isHeld(which))
        listener_.switchUp(which, moment);
}

bool XSwitches::isHeld(Switch which) const {
    return std::ranges::any_of(held_, [which](const auto& one) { return one.second == which; });
}
