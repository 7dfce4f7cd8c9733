// SPDX-License-Identifier: MIT
#pragma once

#include "src/link/Daemon.h"

/// Keeps the keys from the agent and the desktop while presses belong to a try. So no press starts
/// a real scan. The keys are free again when the object goes, and after two minutes without a
/// press: the screen can't be locked before.
class HeldKeyboard {
public:
    HeldKeyboard() = default;
    ~HeldKeyboard();
    HeldKeyboard(const HeldKeyboard&) = delete;
    HeldKeyboard& operator=(const HeldKeyboard&) = delete;

    /// Notes that the user was active at that moment. Moments are on GetCurrentEventTime's clock.
    void stir(double moment) { stirred_ = moment; }

    /// Seconds since then.
    double quietFor(double now) const { return now - stirred_; }

    bool isResting(double now) const;

    /// Call it often. `isWanted`: presses belong to the try. While one lasts the keys aren't given
    /// back, so that its release goes where it went. `isActive`: the window gets the keys now.
    void update(double now, bool isWanted, bool isKeyDown, bool isActive);

private:
    AgentHold agent_;
    void* mode_ = nullptr; ///< the token while keys are held
    double since_ = 0;     ///< when the mode began or was renewed
    double stirred_ = 0;
};
