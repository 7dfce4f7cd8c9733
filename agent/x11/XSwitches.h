// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Switches.h"
#include "agent/x11/Grabs.h"
#include "agent/x11/KeyMap.h"
#include "agent/x11/Motion.h"
#include "agent/x11/XServer.h"

#include <compare>
#include <map>
#include <set>
#include <vector>

/// Passive grabs of each physical device take the keys and buttons from the programs below. They
/// come in whoever holds the keyboard or has a menu open.
///
/// A mouse is no switch: while no scan is under way, a click of a device that moved kMoved points
/// within the last kMovedSeconds is passed on, and so is what is dragged with it. A touch screen is
/// none either.
class XSwitches final : public Switches {
public:
    static constexpr double kMoved = 40; ///< points
    static constexpr double kMovedSeconds = Motion::kMemory;
    /// While it is off, a button that is held counts as let go once its mouse moves so many points:
    /// more than a hand trembles.
    static constexpr double kStill = 10;

    /// Both must outlive it, and the event loop must not go on without it.
    XSwitches(XServer& server, Listener& listener);
    /// Lets go of everything.
    ~XSwitches() override;

    void use(const PrefsRecord& record, double scale) override;
    void setState(State state) override;
    /// Keys that another program has.
    std::string trouble() const override;

    /// Those of the hot keys: indices in the record's hotKeys. Those that the state doesn't take
    /// aren't among them.
    std::vector<int> taken() const;

private:
    /// A key or button of a device.
    struct Button {
        xcb_input_device_id_t device;
        bool isKey;
        std::uint32_t code;

        auto operator<=>(const Button&) const = default;
    };

    struct Press {
        Button button;
        std::uint32_t modifiers;
        double moment;
    };

    /// What a key or button does. The keys' numbers are the record's.
    enum Role { OnOff, Scan, Cancel, ShowSettings, SecondScan, MouseButton, SecondMouseButton };

    struct Wanted {
        Role role;
        bool isKey;
        std::uint32_t code;
        std::uint32_t modifiers;
    };

    void handle(const xcb_generic_event_t& event);
    void handleInput(const xcb_ge_generic_event_t& event);
    void readDevices();
    void changeDevices(const xcb_input_hierarchy_event_t& event);

    bool isWanted(Role role, State state) const;
    std::vector<Wanted> wanted(State state) const;
    const Wanted* find(const std::vector<Wanted>& all, const Press& press) const;
    void refresh();
    void select(const InputDevice& device);

    void press(const Press& press);
    void hear(const Press& press);
    void moved(const xcb_input_raw_motion_event_t& event);
    void passOn(const Press& press);
    void sendUnusedKey();
    void releaseOther(const Button& button);
    void send(std::uint8_t type, std::uint32_t code);
    void down(const Press& press, Switch which);
    void up(const Button& button, double moment);
    bool isHeld(Switch which) const;

    XServer& server_;
    Listener& listener_;
    State state_ = State::Free;
    PrefsRecord record_;
    double scale_ = 1;
    KeyMap keys_;
    Grabs grabs_;
    std::vector<InputDevice> devices_;
    std::map<xcb_input_device_id_t, Motion> motions_; ///< of those with buttons
    std::map<xcb_input_device_id_t, std::uint32_t> selected_;
    std::map<Button, Switch> held_;
    std::set<Button> heardOnly_; ///< of those that are held: not taken
};
