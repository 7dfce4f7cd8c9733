// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <algorithm>
#include <map>

class QKeyEvent;

/// Which keys are down, by scan code. It relies on KeyRepeats, which tells a repetition from a new
/// press. It may see a key more than once: at the window, at the view, and as a copy that comes
/// later, even after the key's next press.
class HeldKeys {
public:
    /// Starts again with the keys that are down now. A press that isn't handled yet isn't one of
    /// them.
    void reset();

    /// Notes a press. True when the key was already down. Asking again about the same press gives
    /// the same answer.
    bool isRepeat(const QKeyEvent& press);

    /// The same without noting it.
    bool wouldRepeat(const QKeyEvent& press) const;

    /// Notes a release. True when it lets go of a key that is down.
    bool ends(const QKeyEvent& release);

    bool contains(quint32 scanCode) const {
        const auto key = keys_.find(scanCode);
        return key != keys_.end() && key->second.isDown;
    }

    bool isEmpty() const {
        return std::ranges::none_of(keys_, [](const auto& key) { return key.second.isDown; });
    }

private:
    struct Key {
        quint64 pressed = 0; ///< the newest press's time stamp
        bool isDown = true;
    };

    std::map<quint32, Key> keys_;
    double resetAt_ = 0; ///< on GetCurrentEventTime's clock
};
