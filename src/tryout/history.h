// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/pasttry.h"

#include "platform/CoreFoundation/CFURL.h"

namespace tryout {

constexpr std::size_t kMostTries = 1000; ///< older ones give way

/// The tries of this user on this computer: korvex/tries.csv under $XDG_DATA_HOME, read when the
/// object is made. They are sent nowhere.
class History {
public:
    History();

    /// From the oldest on.
    const std::vector<PastTry>& tries() const { return tries_; }

    /// Adds one and stores all. A damaged file is kept aside first, a file that can't be read is
    /// left alone. False when they couldn't be stored; then the try is there until the end of the
    /// visit, and the next one tries again.
    bool add(PastTry past);

    /// Deletes all of them; false when the file couldn't be deleted, and nothing changes then.
    bool clear();

    /// Writes a copy to the user's documents, named after the day. Its path, or empty when it
    /// couldn't be written.
    std::string exportCopy() const;

private:
    enum class State { Sound, Damaged, Unreadable };

    bool store();

    CFRef<CFURL> file_; ///< null when there is no folder for it
    State state_ = State::Sound;
    std::vector<PastTry> tries_;
};

} // namespace tryout
