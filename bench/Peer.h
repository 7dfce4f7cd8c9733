// SPDX-License-Identifier: MIT
#pragma once

#include "bench/LinkPeer.h"

#include <QProcess>

/// The process that receives what is measured, as the agent does. It notes the times in shared
/// memory.
class Peer {
public:
    Peer();
    ~Peer();

    /// Seconds from the call of `send` until the peer has what it sends. Negative when nothing
    /// arrives within a second.
    template <class Send>
    double oneWay(Send&& send) {
        const auto before = note_->count.load();
        const auto start = linkClock();
        send();
        while (note_->count.load() == before)
            if (linkClock() - start > 1'000'000'000)
                return -1;
        return static_cast<double>(note_->received - start) * 1e-9;
    }

    /// Waits until the peer has everything that was sent.
    void settle(std::uint64_t sent) const;

    LinkNote& note() { return *note_; }

private:
    QProcess process_;
    LinkNote* note_;
};

/// Started at the first call.
Peer& peer();
