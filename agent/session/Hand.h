// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "agent/session/Guard.h"

#include <QTimer>

#include <cstdint>
#include <functional>
#include <set>

/// Presses keys and buttons for the user. It knows what it holds down, and so does the guard before
/// it is pressed.
class Hand {
public:
    /// Who makes it an own one calls letGo() in the end.
    virtual ~Hand() = default;
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

    virtual void move(Place place) = 0;
    /// Buttons are 1 to 255, as X has them: 1 is the main one, for left hands, too; 4 to 7 are the
    /// wheel's.
    void buttonDown(int button);
    void buttonUp(int button);
    /// `code` is the typist's.
    void keyDown(std::uint8_t code);
    void keyUp(std::uint8_t code);

    /// Calls that, at once or later, when a button may go down where an overlay was hidden before.
    virtual void whenOverlaysAreGone(std::function<void()> then) { then(); }

    /// Lets go of all that is held, at once. The rest of a click is dropped, and so is its `done`.
    void letGo();

    bool holdsAnything() const { return !held_.empty(); }

protected:
    /// It must outlive it.
    explicit Hand(Guard& guard);

    /// The button's number where it is pressed, which the guard is told.
    virtual std::uint8_t deviceButton(int button) const {
        return static_cast<std::uint8_t>(button);
    }

    virtual void send(Held what, bool isDown) = 0;

private:
    void press(Held what);
    void release(Held what);
    void step();
    void finish();

    Guard& guard_;
    std::set<Held> held_;
    Click click_;
    int stepsLeft_ = 0; ///< of the click: downs and ups
    std::function<void()> done_;
    QTimer timer_;
};
