#include "platform/CoreServices/detail/DetachedProcess.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int kFirstOtherFile = 3; ///< after input, output and errors

/// Starts the program; its process ID, or 0.
pid_t spawn(std::string& executable, std::vector<std::string>& arguments) {
    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawn_file_actions_init(&files);
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&files, kFirstOtherFile);
    posix_spawnattr_init(&attributes);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);

    pid_t pid = 0;
    std::vector<char*> words{executable.data()};
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);
    const int error =
        posix_spawnp(&pid, executable.c_str(), &files, &attributes, words.data(), environ);

    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error == 0 ? pid : 0;
}

} // namespace

std::unique_ptr<DetachedProcess> DetachedProcess::start(std::string executable,
                                                        std::vector<std::string> arguments) {
    const pid_t pid = spawn(executable, arguments);
    if (pid == 0)
        return nullptr;
    // The process is this one's child and not reaped yet, so the number is still its own.
    const int pidFile = static_cast<int>(syscall(SYS_pidfd_open, pid, 0));
    return std::unique_ptr<DetachedProcess>(new DetachedProcess(pidFile));
}

DetachedProcess::DetachedProcess(int pidFile) : pidFile_(pidFile) {
    if (pidFile_ < 0 || !QCoreApplication::instance())
        return;
    ended_ = std::make_unique<QSocketNotifier>(pidFile_, QSocketNotifier::Read);
    QObject::connect(ended_.get(), &QSocketNotifier::activated, [this] { isRunning(); });
}

DetachedProcess::~DetachedProcess() {
    ended_.reset();
    if (pidFile_ >= 0)
        close(pidFile_);
}

bool DetachedProcess::isRunning() {
    if (pidFile_ < 0)
        return false;
    siginfo_t info{};
    const int failed = waitid(P_PIDFD, static_cast<id_t>(pidFile_), &info, WEXITED | WNOHANG);
    if (failed == 0 && info.si_pid == 0)
        return true;
    if (ended_)
        ended_->setEnabled(false);
    close(pidFile_);
    pidFile_ = -1;
    return false;
}
