// SPDX-License-Identifier: MIT
#include "agent/mutter/MutterSession.h"

#include "agent/wayland/ShortcutSwitches.h"
#include "platform/CoreFoundation/Localization.h"

#include <utility>

std::unique_ptr<Session> MutterSession::connect(Guard& guard, std::string& fault) {
    auto server = XServer::connect(fault);
    if (!server)
        return nullptr;
    std::unique_ptr<MutterSession> session(new MutterSession(std::move(server), guard));
    if (session->remote_.open())
        return session;
    fault = localized("Agent", "Korvex can't scan: the desktop refuses its remote control.");
    return nullptr;
}

MutterSession::MutterSession(std::unique_ptr<XServer> server, Guard& guard)
    : Session(desktop_, windows_, hand_, typist_, overlays_), server_(std::move(server)),
      desktop_(*server_, moved_), windows_(*server_), hand_(remote_, desktop_, moved_, guard),
      typist_(hand_), overlays_(*server_) {}

std::unique_ptr<Switches> MutterSession::makeSwitches(Switches::Listener& listener) {
    return std::make_unique<ShortcutSwitches>(listener);
}
