// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Hand.h"
#include "agent/x11/XServer.h"

/// By XTEST. Key codes are the server's.
class XHand final : public Hand {
public:
    /// Both must outlive it.
    XHand(XServer& server, Guard& guard);
    /// Lets go of everything.
    ~XHand() override;

    void move(Place place) override;

private:
    std::uint8_t deviceButton(int button) const override;
    void send(Held what, bool isDown) override;
    void fake(std::uint8_t type, std::uint8_t code, Place place = {});

    XServer& server_;
};
