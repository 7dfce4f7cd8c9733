// SPDX-License-Identifier: MIT
#include "agent/x11/XHand.h"

#include <cmath>
#include <xcb/xtest.h>

XHand::XHand(XServer& server, Guard& guard) : Hand(guard), server_(server) {}

XHand::~XHand() {
    letGo();
}

void XHand::move(Place place) {
    fake(XCB_MOTION_NOTIFY, 0, place);
}

std::uint8_t XHand::deviceButton(int button) const {
    return server_.deviceButton(static_cast<std::uint32_t>(button));
}

void XHand::send(Held what, bool isDown) {
    if (what.isKey)
        fake(isDown ? XCB_KEY_PRESS : XCB_KEY_RELEASE, what.code);
    else
        fake(isDown ? XCB_BUTTON_PRESS : XCB_BUTTON_RELEASE, what.code);
}

void XHand::fake(std::uint8_t type, std::uint8_t code, Place place) {
    xcb_test_fake_input(server_.connection(), type, code, XCB_CURRENT_TIME, server_.root(),
                        static_cast<std::int16_t>(std::lround(place.x)),
                        static_cast<std::int16_t>(std::lround(place.y)), 0);
    server_.flush();
}
