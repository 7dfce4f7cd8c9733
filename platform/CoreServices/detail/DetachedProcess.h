#pragma once

#include <memory>
#include <string>
#include <sys/types.h>
#include <vector>

class QSocketNotifier;

/// A program that was started to live on its own: in a session of its own, with /dev/null as its
/// input, all other open files closed but output and errors, no signal blocked or ignored. It
/// outlives this object and this process. Once it has ended it is reaped, from the event loop.
class DetachedProcess {
public:
    /// An executable that is named without a slash is looked for in $PATH. Null when it can't be
    /// executed. Waits for the exec itself, about a millisecond.
    static std::unique_ptr<DetachedProcess> start(std::string executable,
                                                  std::vector<std::string> arguments = {});

    ~DetachedProcess();
    DetachedProcess(const DetachedProcess&) = delete;
    DetachedProcess& operator=(const DetachedProcess&) = delete;

    bool isRunning();

private:
    explicit DetachedProcess(int pidFile);

    int pidFile_; ///< a file descriptor of the process; -1 once it has been reaped
    std::unique_ptr<QSocketNotifier> ended_;
};
