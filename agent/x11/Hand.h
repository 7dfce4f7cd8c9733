// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "agent/x11/Guard.h"
#include "agent/x11/XServer.h"

#include <functional>

/// Presses keys and buttons for the user, by XTEST. It knows what it holds down, and so does the
/// guard before it is pressed.
class Hand {
public:
    /// Both must outlive it.
    Hand(XServer& server, Guard& guard);
    /// Lets go of everything.
    ~Hand();

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
    void buttonDown(int button);
    void buttonUp(int button);
    /// `code` is the server's key code.
    void keyDown(xcb_keycode_t code);
    void keyUp(xcb_keycode_t code);

    /// Lets go of all that is held, at once.
    void letGo();

    bool holdsAnything() const;
};
