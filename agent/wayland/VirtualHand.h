// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Hand.h"
#include "agent/wayland/SymbolKeymap.h"
#include "agent/wayland/WaylandDisplay.h"

struct zwlr_virtual_pointer_v1;
struct zwp_virtual_keyboard_v1;

/// A pointer and a keyboard of its own beside the user's. The keyboard's keys are those of a
/// keymap that the typist extends.
class VirtualHand final : public Hand {
public:
    /// Both must outlive it.
    VirtualHand(WaylandDisplay& display, Guard& guard);
    /// Lets go of everything.
    ~VirtualHand() override;

    void move(Place place) override;

    /// Where it moved last, or the middle of the first screen. Other pointers aren't told of.
    Place place() const;

    /// The key with that symbol of X, for keyDown. None when there is no such symbol, or no key
    /// left.
    std::optional<std::uint8_t> keyFor(const std::string& symbol);

private:
    void send(Held what, bool isDown) override;
    void sendKey(std::uint8_t code, bool isDown);

    WaylandDisplay& display_;
    zwlr_virtual_pointer_v1* pointer_;
    zwp_virtual_keyboard_v1* keyboard_;
    SymbolKeymap keymap_;
    std::optional<Place> place_;
};

/// Presses or releases a button of X's numbers, or turns the wheel by a notch when one goes down.
void sendButton(zwlr_virtual_pointer_v1* pointer, std::uint8_t button, bool isDown);
