// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <functional>
#include <initializer_list>
#include <memory>

/// Passes signals of this process to the event loop. Make it before any thread is started: it
/// blocks the signals for later threads.
class UnixSignals {
public:
    explicit UnixSignals(std::initializer_list<int> signals);
    ~UnixSignals();
    UnixSignals(const UnixSignals&) = delete;
    UnixSignals& operator=(const UnixSignals&) = delete;

    /// From now on calls `handler` with the number of each signal. Needs a QCoreApplication; `this`
    /// must outlive its event loop.
    void deliverTo(std::function<void(int)> handler);

private:
    int file_;
    std::unique_ptr<QSocketNotifier> notifier_;
};
