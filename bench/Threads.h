// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <fstream>
#include <string>

/// Calls `add` with each file of that name of a process's threads, in /proc.
template <class Add>
void forEachThread(long long process, const char* name, Add&& add) {
    for (const auto& thread :
         std::filesystem::directory_iterator("/proc/" + std::to_string(process) + "/task")) {
        std::ifstream file(thread.path() / name);
        add(file);
    }
}

/// What a process's threads have used, to the nanosecond: the ticks of /proc/…/stat miss what
/// happens between them. 0 where the kernel doesn't count.
inline double processorSeconds(long long process) {
    double sum = 0;
    forEachThread(process, "schedstat", [&](std::ifstream& file) {
        double nanoseconds = 0;
        file >> nanoseconds;
        sum += nanoseconds * 1e-9;
    });
    return sum;
}
