// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <map>

class QKeyEvent;

/// Which keys are down, by scan code. For a repeating key X11 reports a release and a new press,
/// and Qt may take the first for a real release. So the X server is asked which keys are down.
/// Other platforms are trusted.
class HeldKeys {
public:
    /// Starts again with the keys that are down now. A press that isn't handled yet isn't one of
    /// them.
    void reset();

    /// Notes a press. True when the key was already down. Asking again about the same press gives
    /// the same answer.
    bool isRepeat(const QKeyEvent& press);

    /// Notes a release. True when the key is really up.
    bool isUp(const QKeyEvent& release);

    bool contains(quint32 scanCode) const { return since_.contains(scanCode); }

    bool isEmpty() const { return since_.empty(); }

private:
    std::map<quint32, quint64> since_; ///< the time stamp of each key's press
    double resetAt_ = 0;               ///< on GetCurrentEventTime's clock
};
