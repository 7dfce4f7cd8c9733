// SPDX-License-Identifier: MIT
#pragma once

#include "src/tryout/pasttry.h"

#include "platform/CoreFoundation/CFURL.h"

namespace tryout {

constexpr std::size_t kMostTries = 1000; ///< the oldest are dropped

/// This user's tries on this computer: korvex/tries.csv under $XDG_DATA_HOME, read by the
/// constructor. They are sent nowhere.
class History {
public:
    History();

    /// The oldest comes first.
    const std::vector<PastTry>& tries() const { return tries_; }

    /// Adds one and stores all. A damaged file is kept aside first; an unreadable file isn't
    /// changed. False when they couldn't be stored. Then the try is kept in memory, and the next
    /// one tries again.
    bool add(PastTry past);

    /// Deletes all. False when the file couldn't be deleted; nothing changes then.
    bool clear();

    /// Writes a copy to the user's documents, named after the day. Returns its path; empty on
    /// failure.
    std::string exportCopy() const;

private:
    enum class State { Sound, Damaged, Unreadable };

    bool store();

    CFRef<CFURL> file_; ///< null when there is no folder for it
    State state_ = State::Sound;
    std::vector<PastTry> tries_;
};

} // namespace tryout
