// SPDX-License-Identifier: MIT
#include "src/tryout/HeldKeyboard.h"

#include "platform/HIToolbox/HotKeyMode.h"

#include <utility>

namespace {

constexpr double kLongestRest = 120; ///< s without a press
constexpr double kRenewal = 20;      ///< s; the mode ends by itself after 30

} // namespace

HeldKeyboard::~HeldKeyboard() {
    PopSymbolicHotKeyMode(mode_);
}

bool HeldKeyboard::isResting(double now) const {
    return quietFor(now) > kLongestRest;
}

void HeldKeyboard::update(double now, bool isWanted, bool isKeyDown, bool isActive) {
    const bool isHeld = isWanted && !isResting(now);
    if (!isHeld && !isKeyDown)
        PopSymbolicHotKeyMode(std::exchange(mode_, nullptr));
    if (isHeld && (!mode_ || now >= since_ + kRenewal)) {
        since_ = now;
        if (mode_)
            RenewSymbolicHotKeyMode(mode_);
        else
            mode_ = PushSymbolicHotKeyMode(kHIHotKeyModeAllDisabled);
    }
    agent_.set(mode_ && isActive);
}
