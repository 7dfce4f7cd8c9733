// SPDX-License-Identifier: MIT
#include "agent/x11/XSession.h"

#include "agent/x11/XSwitches.h"

#include <utility>

XSession::XSession(XServer& server, Guard& guard)
    : server_(server), desktop_(server), windows_(server), hand_(server, guard),
      typist_(server, hand_), overlays_(server) {}

std::unique_ptr<Switches> XSession::makeSwitches(Switches::Listener& listener) {
    return std::make_unique<XSwitches>(server_, listener);
}

void XSession::drain() {
    server_.drain();
}

void XSession::onEnd(std::function<void()> ended) {
    server_.onEnd(std::move(ended));
}
