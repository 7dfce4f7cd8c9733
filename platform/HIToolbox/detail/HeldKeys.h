// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <map>

class QKeyEvent;

/// Which keys are down, by scan code. While a key repeats, X11 reports it as released and pressed
/// again, and Qt can take the first half for a real release. So the X server is asked which keys
/// are down. On other platforms Qt's word is taken.
class HeldKeys {
public:
    /// Starts anew with what is down at this moment. A press that is still to be handled then is
    /// none of them.
    void reset();

    /// Takes in a press; true when the key was down already. Asked again of the same press it
    /// answers the same.
    bool isRepeat(const QKeyEvent& press);

    /// Takes in a release; true when the key really is up.
    bool isUp(const QKeyEvent& release);

    bool contains(quint32 scanCode) const { return since_.contains(scanCode); }

    bool isEmpty() const { return since_.empty(); }

private:
    std::map<quint32, quint64> since_; ///< the time stamp of each key's press
    double resetAt_ = 0;               ///< on GetCurrentEventTime's clock
};
