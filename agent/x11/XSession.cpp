// SPDX-License-Identifier: MIT
#include "agent/x11/XSession.h"

#include "agent/x11/XSwitches.h"

#include <utility>

std::unique_ptr<Session> XSession::connect(Guard& guard, std::string& fault) {
    auto server = XServer::connect(fault);
    return server ? std::make_unique<XSession>(std::move(server), guard) : nullptr;
}

XSession::XSession(std::unique_ptr<XServer> server, Guard& guard)
    : Session(desktop_, windows_, hand_, typist_, overlays_), server_(std::move(server)),
      desktop_(*server_), windows_(*server_), hand_(*server_, guard), typist_(*server_, hand_),
      overlays_(*server_) {}

std::unique_ptr<Switches> XSession::makeSwitches(Switches::Listener& listener) {
    return std::make_unique<XSwitches>(*server_, listener);
}

void XSession::drain() {
    server_->drain();
}

void XSession::onEnd(std::function<void()> ended) {
    server_->onEnd(std::move(ended));
}
