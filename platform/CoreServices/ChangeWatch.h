// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class QTimer;

/// Calls a function from the event loop after changes, once for all that happened meanwhile. It
/// stops when this object is destroyed. Needs a QCoreApplication.
class ChangeWatch {
public:
    /// `changed` times out after changes. It must live as long as the program. Null: never called.
    ChangeWatch(const QTimer* changed, std::function<void()> onChange);
    ChangeWatch(ChangeWatch&&) noexcept;
    ChangeWatch& operator=(ChangeWatch&&) noexcept;
    ~ChangeWatch();

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};

/// Processes that begin or cease to take part. Never called without a session bus.
ChangeWatch watchProcesses(std::function<void()> onChange);

/// Answers of findLaunchTrouble and isLaunching (LaunchTrouble.h).
ChangeWatch watchLaunches(std::function<void()> onChange);

/// Of what stateFileOutcome (StateFile.h) answers.
ChangeWatch watchStateFile(std::function<void()> onChange);
