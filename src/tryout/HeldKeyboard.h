// SPDX-License-Identifier: MIT
#pragma once

/// Keeps the keys from the agent and the desktop while presses are meant for a try, so that none
/// starts a real scan; they are free again when the object goes. After two minutes without a press
/// the user rests: the keys are given back, since the screen can't be locked before, and a switch
/// may be all that the user has to leave with.
class HeldKeyboard {
public:
    HeldKeyboard() = default;
    ~HeldKeyboard();
    HeldKeyboard(const HeldKeyboard&) = delete;
    HeldKeyboard& operator=(const HeldKeyboard&) = delete;

    /// The user was active at that moment, of GetCurrentEventTime's clock, as all moments here.
    void stir(double moment) { stirred_ = moment; }

    bool isResting(double now) const;

    /// To be called often. `isWanted`: presses are meant for the try. While a key is down nothing
    /// changes, so that its release gets where its press went.
    void update(double now, bool isWanted, bool isKeyDown);

private:
    void* mode_ = nullptr; ///< the token, while they are held
    double since_ = 0;     ///< when the mode began, or was renewed
    double stirred_ = 0;
};
