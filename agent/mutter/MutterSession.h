// SPDX-License-Identifier: MIT
#pragma once

#include "agent/mutter/MutterHand.h"
#include "agent/session/Session.h"
#include "agent/wayland/SymbolTypist.h"
#include "agent/x11/XDesktop.h"
#include "agent/x11/XOverlayWindow.h"
#include "agent/x11/XWindows.h"

/// The screens are X11's. Of menus and of the pointer X11 tells only over its own windows.
class MutterDesktop final : public XDesktop {
public:
    MutterDesktop(XServer& server, const std::optional<Place>& moved)
        : XDesktop(server), moved_(moved) {}

    Place pointer() const override { return moved_.value_or(XDesktop::pointer()); }

    bool tellsMenus() const override { return false; }

private:
    const std::optional<Place>& moved_; ///< where the hand is
};

/// A session of mutter's, as GNOME's: lines are windows of X11's, which lie over native ones, too;
/// the hand is mutter's remote control; the switch is told by the desktop's shortcuts. Units are
/// mutter's. Only windows and menus of X11's are known.
class MutterSession final : public Session {
public:
    /// Null with `fault` in words when there is none, or it has no XWayland.
    static std::unique_ptr<Session> connect(Guard& guard, std::string& fault);

    std::unique_ptr<Switches> makeSwitches(Switches::Listener& listener) override;

    void drain() override { server_->drain(); }

    void onEnd(std::function<void()> ended) override { server_->onEnd(std::move(ended)); }

private:
    MutterSession(std::unique_ptr<XServer> server, Guard& guard);

    std::unique_ptr<XServer> server_;
    std::optional<Place> moved_;
    MutterDesktop desktop_;
    XWindows windows_;
    RemoteDesktop remote_;
    MutterHand hand_;
    SymbolTypist<MutterHand> typist_;
    XOverlayWindows overlays_;
};
