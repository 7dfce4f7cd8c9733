// SPDX-License-Identifier: MIT
#pragma once

#include "agent/mutter/RemoteDesktop.h"
#include "agent/session/Desktop.h"
#include "agent/session/Hand.h"

#include <optional>
#include <string>

/// By mutter's remote control.
class MutterHand final : public Hand {
public:
    /// All must outlive it. `desktop` has the screens; `moved` gets where it moves.
    MutterHand(RemoteDesktop& remote, const Desktop& desktop, std::optional<Place>& moved,
               Guard& guard);
    /// Lets go of everything.
    ~MutterHand() override;

    void move(Place place) override;

    /// A window of X11's takes clicks under mutter, whatever its shape, until mutter has seen it
    /// go: it answers two questions first.
    void whenOverlaysAreGone(std::function<void()> then) override;

    /// A number for keyDown that stands for that symbol of X. None when there is no such symbol.
    std::optional<std::uint8_t> keyFor(const std::string& symbol);

private:
    void send(Held what, bool isDown) override;

    RemoteDesktop& remote_;
    const Desktop& desktop_;
    std::vector<std::uint32_t> symbols_; ///< of the keys, from number 0
    std::optional<Place>& moved_;
};
