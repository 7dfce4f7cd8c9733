// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Desktop.h"
#include "agent/session/Hand.h"
#include "agent/session/OnScreenKeyboard.h"
#include "agent/session/OverlayWindow.h"
#include "agent/session/Switches.h"
#include "agent/session/Typist.h"
#include "agent/session/Windows.h"

/// A session that can be scanned: one kind of display server, with its way to hear, to draw and to
/// act. All that it gives is its own.
class Session {
public:
    virtual ~Session() = default;
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    Desktop& desktop() const { return desktop_; }

    Windows& windows() const { return windows_; }

    Hand& hand() const { return hand_; }

    Typist& typist() const { return typist_; }

    OverlayWindows& overlays() const { return overlays_; }

    virtual const OnScreenKeyboard& keyboard() const { return kOnboard; }

    /// The listener must outlive them, and the event loop must not go on without it.
    virtual std::unique_ptr<Switches> makeSwitches(Switches::Listener& listener) = 0;

    /// Handles what has arrived. Call it before a frame is drawn, so that a press comes first.
    virtual void drain() = 0;

    /// Called once when the display is gone. Everything does nothing from then on. It may end the
    /// event loop, but not this object.
    virtual void onEnd(std::function<void()> ended) = 0;

protected:
    /// Members of the one that is made: they need not be there yet.
    Session(Desktop& desktop, Windows& windows, Hand& hand, Typist& typist,
            OverlayWindows& overlays)
        : desktop_(desktop), windows_(windows), hand_(hand), typist_(typist), overlays_(overlays) {}

private:
    Desktop& desktop_;
    Windows& windows_;
    Hand& hand_;
    Typist& typist_;
    OverlayWindows& overlays_;
};
