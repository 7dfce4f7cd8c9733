// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Session.h"
#include "agent/wayland/LayerWindows.h"
#include "agent/wayland/SymbolTypist.h"
#include "agent/wayland/WaylandDesktop.h"

/// A Wayland session whose compositor lets programs draw over all windows and act for the user.
class WaylandSession final : public Session {
public:
    /// Null with `fault` in words when there is none.
    static std::unique_ptr<Session> connect(Guard& guard, std::string& fault);

    const OnScreenKeyboard& keyboard() const override { return kSqueekboard; }

    std::unique_ptr<Switches> makeSwitches(Switches::Listener& listener) override;

    void drain() override { display_->drain(); }

    void onEnd(std::function<void()> ended) override { display_->onEnd(std::move(ended)); }

private:
    WaylandSession(std::unique_ptr<WaylandDisplay> display, Guard& guard);

    std::unique_ptr<WaylandDisplay> display_;
    WaylandWindows windows_;
    VirtualHand hand_;
    SymbolTypist<VirtualHand> typist_;
    WaylandDesktop desktop_;
    LayerWindows overlays_;
};
