// SPDX-License-Identifier: MIT
#include "agent/mutter/MutterHand.h"

#include "agent/session/ButtonCodes.h"

#include <algorithm>
#include <cmath>
#include <xkbcommon/xkbcommon.h>

MutterHand::MutterHand(RemoteDesktop& remote, const Desktop& desktop, std::optional<Place>& moved,
                       Guard& guard)
    : Hand(guard), remote_(remote), desktop_(desktop), moved_(moved) {}

MutterHand::~MutterHand() {
    letGo();
}

void MutterHand::whenOverlaysAreGone(std::function<void()> then) {
    constexpr int kOnItsWayMs = 5; // from the X server to mutter
    QTimer::singleShot(kOnItsWayMs, &remote_, [this, then = std::move(then)] {
        remote_.whenIdle([this, then] { remote_.whenIdle(then); });
    });
}

void MutterHand::move(Place place) {
    moved_ = place;
    const auto screens = desktop_.screens();
    const auto found = std::ranges::find_if(
        screens, [&](const Screen& screen) { return screen.area.contains(place); });
    const Area& area = (found == screens.end() ? screens.front() : *found).area;
    remote_.move(QPointF(area.left, area.top).toPoint(), place.x - area.left, place.y - area.top);
}

std::optional<std::uint8_t> MutterHand::keyFor(const std::string& symbol) {
    constexpr std::size_t kMost = 255;
    const std::uint32_t number = xkb_keysym_from_name(symbol.c_str(), XKB_KEYSYM_NO_FLAGS);
    const auto known = std::ranges::find(symbols_, number);
    if (number == XKB_KEY_NoSymbol || (known == symbols_.end() && symbols_.size() == kMost))
        return std::nullopt;
    const auto code = static_cast<std::uint8_t>(known - symbols_.begin());
    if (known == symbols_.end())
        symbols_.push_back(number);
    return code;
}

void MutterHand::send(Held what, bool isDown) {
    if (what.isKey)
        remote_.key(symbols_[what.code], isDown);
    else if (const auto button = kernelButton(what.code))
        remote_.button(*button, isDown);
    else if (const auto turn = wheelTurn(what.code); turn && isDown)
        remote_.scroll(turn->isAcross, turn->notches);
}
