// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <memory>

/// Calls a function from the event loop each time after processes have begun or ceased to take
/// part, once for all that happened meanwhile. Ends with this object. Without a session bus it is
/// never called. Like Processes.h it needs a QCoreApplication.
class ProcessWatch {
public:
    explicit ProcessWatch(std::function<void()> onChange);
    ~ProcessWatch();
    ProcessWatch(const ProcessWatch&) = delete;
    ProcessWatch& operator=(const ProcessWatch&) = delete;

private:
    struct Connection;
    std::unique_ptr<Connection> connection_;
};
