// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/PrefsRecord.h"

#include <memory>

/// What is heard: sounds of the desktop's theme, at the volume of the settings. Without a sound
/// server it is silent. Never waits: a thread of its own plays, and while it is busy only the last
/// sound asked for is kept.
class Sounds {
public:
    Sounds();
    /// Doesn't wait for the sound server either.
    ~Sounds();
    Sounds(const Sounds&) = delete;
    Sounds& operator=(const Sounds&) = delete;

    /// Of a checked record. Silent before.
    void use(const PrefsRecord& record);

    void click();  ///< a click was made; if clicks are to be heard
    void arm();    ///< a button of the palette was pressed in, or comes out; as clicks
    void pickUp(); ///< a drag begins; if prompts are to be heard
    void drop();   ///< it ends; the same
    void refuse(); ///< something can't be done; the same

    /// How much quieter than the sound itself that level is, in decibels: half the level sounds
    /// half as loud, which takes 10 dB. Level 0 is silent and has none.
    static double decibels(UInt32 level);

private:
    class Player;
    void play(bool wanted, const char* const* names);

    std::shared_ptr<Player> player_;
    UInt32 level_ = 0;
    bool hearsClicks_ = false, hearsPrompts_ = false;
};
