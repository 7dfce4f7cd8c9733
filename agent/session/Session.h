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

    virtual Desktop& desktop() = 0;
    virtual Windows& windows() = 0;
    virtual Hand& hand() = 0;
    virtual Typist& typist() = 0;
    virtual OverlayWindows& overlays() = 0;

    virtual const OnScreenKeyboard& keyboard() const { return kOnboard; }

    /// The listener must outlive them, and the event loop must not go on without it.
    virtual std::unique_ptr<Switches> makeSwitches(Switches::Listener& listener) = 0;

    /// Handles what has arrived. Call it before a frame is drawn, so that a press comes first.
    virtual void drain() = 0;

    /// Called once when the display is gone. Everything does nothing from then on. It may end the
    /// event loop, but not this object.
    virtual void onEnd(std::function<void()> ended) = 0;
};
