// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/DetachedProcess.h"

#include <csignal>
#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace {

constexpr int kFirstOtherFile = 3; ///< after input, output and errors

/// The program's open files and its current folder.
void describeFiles(posix_spawn_file_actions_t& files) {
    posix_spawn_file_actions_addopen(&files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&files, kFirstOtherFile);
    posix_spawn_file_actions_addchdir_np(&files, "/");
}

void describeSignals(posix_spawnattr_t& attributes) {
    sigset_t none, all;
    sigemptyset(&none);
    sigfillset(&all);
    posix_spawnattr_setflags(&attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF);
    posix_spawnattr_setsigmask(&attributes, &none);
    posix_spawnattr_setsigdefault(&attributes, &all);
}

} // namespace

pid_t startDetached(std::string executable, std::vector<std::string> arguments) {
    std::vector<char*> words{executable.data()};
    for (std::string& argument : arguments)
        words.push_back(argument.data());
    words.push_back(nullptr);

    posix_spawn_file_actions_t files;
    posix_spawnattr_t attributes;
    posix_spawn_file_actions_init(&files);
    posix_spawnattr_init(&attributes);
    describeFiles(files);
    describeSignals(attributes);
    pid_t pid = 0;
    const int error =
        posix_spawnp(&pid, executable.c_str(), &files, &attributes, words.data(), environ);
    posix_spawnattr_destroy(&attributes);
    posix_spawn_file_actions_destroy(&files);
    return error == 0 ? pid : 0;
}
