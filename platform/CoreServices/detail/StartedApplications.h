// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/ChangeWatch.h"
#include "platform/CoreServices/LaunchTrouble.h"
#include "platform/CoreServices/detail/ProcessEnd.h"
#include "platform/CoreServices/detail/ProcessTable.h"

#include <chrono>
#include <map>

class CFBundle;

/// The applications that this process starts, by the paths of their bundles. Each runs once at a
/// time. Main thread only.
class StartedApplications {
public:
    /// Lives as long as the program.
    static StartedApplications& shared();

    /// Starts the application unless it runs or is starting. If it was asked to quit, or isn't up
    /// and ends, it is started when its process has ended. `url` names its bundle.
    OSStatus start(const CFURL* url);

    /// Tells that an event asks this process to quit. An application that waited for its end isn't
    /// started any more.
    void noteQuitRequest(const ProcessSerialNumber& psn);

    /// Forgets what went wrong.
    void forgive(const std::string& bundle);

    std::optional<TroubledApplication> findTrouble() const;

    /// See LaunchTrouble.h.
    bool isLaunching(const std::string& bundle) const;

    /// Times out after changes, once for all that happened meanwhile.
    const QTimer& changed() const { return changed_; }

private:
    using Clock = std::chrono::steady_clock;

    struct Application {
        std::string executable;
        OSType signature = 0;                ///< 0 when unknown
        std::unique_ptr<ProcessEnd> process; ///< null when none that was started here runs
        std::optional<Clock::time_point> awaitedSince; ///< it was started then and isn't up yet
        bool couldntStart = false;
        bool startsNext = false; ///< when its process has ended
        bool isToQuit = false;   ///< `process` was asked to
        int endings = 0;         ///< by itself
    };

    /// A process that was asked to quit.
    struct Quitting {
        OSType signature;
        std::unique_ptr<ProcessEnd> process;
    };

    StartedApplications();
    OSStatus startUnlessRunning(Application& application);
    OSStatus launch(Application& application);
    void await(Application& application);
    void noteEnd(Application& application);
    void noteQuitEnd(pid_t pid);
    void startIfNext(Application& application);
    void noteProcesses();
    bool isOf(const Application& application, pid_t pid, OSType signature) const;
    /// `ended` doesn't count: the bus may not know yet that this process is gone.
    bool isUp(const Application& application, pid_t ended = 0) const;
    bool isQuitting(const Application& application) const;
    bool isAwaited(const Application& application) const;
    void tell();

    std::map<std::string, Application> applications_;
    std::map<pid_t, Quitting> quitting_;
    QTimer changed_;
    ChangeWatch processes_;
};
