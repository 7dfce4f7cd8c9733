// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

class QTimer;

/// Calls a function from the event loop each time after something has changed, once for all that
/// happened meanwhile. Ends with this object. Like Processes.h it needs a QCoreApplication.
class ChangeWatch {
public:
    /// `changed` times out after changes, and lives as long as the program. Null: never called.
    ChangeWatch(const QTimer* changed, std::function<void()> onChange);
    ChangeWatch(ChangeWatch&&) noexcept;
    ChangeWatch& operator=(ChangeWatch&&) noexcept;
    ~ChangeWatch();

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};

/// Of processes that begin or cease to take part. Without a session bus it never calls.
ChangeWatch watchProcesses(std::function<void()> onChange);

/// Of what findLaunchTrouble and isLaunching (LaunchTrouble.h) answer.
ChangeWatch watchLaunches(std::function<void()> onChange);

/// Of what stateFileOutcome (StateFile.h) answers.
ChangeWatch watchStateFile(std::function<void()> onChange);
