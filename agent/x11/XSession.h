// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Session.h"
#include "agent/x11/XDesktop.h"
#include "agent/x11/XHand.h"
#include "agent/x11/XOverlayWindow.h"
#include "agent/x11/XTypist.h"
#include "agent/x11/XWindows.h"

/// An X11 display.
class XSession final : public Session {
public:
    /// Null with `fault` in words when there is no display, or it lacks what scanning needs.
    static std::unique_ptr<Session> connect(Guard& guard, std::string& fault);

    /// `guard` must outlive it.
    XSession(std::unique_ptr<XServer> server, Guard& guard);

    std::unique_ptr<Switches> makeSwitches(Switches::Listener& listener) override;
    void drain() override;
    void onEnd(std::function<void()> ended) override;

private:
    std::unique_ptr<XServer> server_;
    XDesktop desktop_;
    XWindows windows_;
    XHand hand_;
    XTypist typist_;
    XOverlayWindows overlays_;
};
