// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "agent/x11/Guard.h"
#include "agent/x11/XServer.h"

#include <QTimer>

#include <functional>
#include <set>
#include <utility>

/// Presses keys and buttons for the user, by XTEST. It knows what it holds down, and so does the
/// guard before it is pressed.
class Hand {
public:
    /// Both must outlive it.
    Hand(XServer& server, Guard& guard);
    /// Lets go of everything.
    ~Hand();
    Hand(const Hand&) = delete;
    Hand& operator=(const Hand&) = delete;

    /// A click that goes on by itself: the pointer jumps there, the button goes down, comes up
    /// after `duration` seconds, and so on with `pause` seconds between.
    struct Click {
        Place place;
        int button = 1;
        int count = 1;
        double duration = 0.07;
        double pause = 0.01;
    };

    /// `done` (may be empty) is called when the last button has come up. One that is under way is
    /// finished at once.
    void click(const Click& click, std::function<void()> done = {});

    void move(Place place);
    /// Buttons are 1 to 255, as programs see them: 1 is the main one, for left hands, too.
    void buttonDown(int button);
    void buttonUp(int button);
    /// `code` is the server's key code.
    void keyDown(xcb_keycode_t code);
    void keyUp(xcb_keycode_t code);

    /// Lets go of all that is held, at once. The rest of a click is dropped, and so is its `done`.
    void letGo();

    bool holdsAnything() const { return !held_.empty(); }

private:
    /// A key or button: whether it is a key, and its code.
    using Held = std::pair<bool, std::uint8_t>;

    void press(Held what);
    void release(Held what);
    void send(std::uint8_t type, std::uint8_t code, Place place = {});
    void step();
    void finish();

    XServer& server_;
    Guard& guard_;
    std::set<Held> held_;
    Click click_;
    int stepsLeft_ = 0; ///< of the click: downs and ups
    std::function<void()> done_;
    QTimer timer_;
};
