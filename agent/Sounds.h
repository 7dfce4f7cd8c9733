// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/PrefsRecord.h"

/// What is heard: sounds of the desktop's theme, at the volume of the settings. Without a sound
/// server it is silent. Never waits.
class Sounds {
public:
    Sounds();
    ~Sounds();

    /// Of a checked record.
    void use(const PrefsRecord& record);

    void click();  ///< a click was made; if clicks are to be heard
    void pickUp(); ///< a drag begins; if prompts are to be heard
    void drop();   ///< it ends; the same
    void refuse(); ///< something can't be done; the same
};
