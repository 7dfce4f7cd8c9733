// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <initializer_list>
#include <memory>

/// Hands signals of this process to the event loop. Made before any thread is started, since it
/// blocks them for the threads that follow.
class UnixSignals {
public:
    explicit UnixSignals(std::initializer_list<int> signals);
    ~UnixSignals();
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;

    /// Calls `handler` with the number of each signal from now on. Needs a QCoreApplication; `this`
    /// must outlive its event loop.
    void deliverTo(std::function<void(int)> handler);

private:
    int file_;
    std::unique_ptr<QSocketNotifier> notifier_;
};
