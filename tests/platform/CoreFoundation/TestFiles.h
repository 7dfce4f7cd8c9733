// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gmock/gmock.h>
#include <iterator>
#include <string>
#include <string_view>
#include <thread>

namespace fs = std::filesystem;

inline void writeFile(const fs::path& path, std::string_view bytes) {
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary | std::ios::trunc).write(bytes.data(), std::ssize(bytes));
}

inline std::string readFile(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// How many files beside that one are pending replacements of it.
inline long countPending(const fs::path& path) {
    const std::string start = path.filename().string() + ".new";
    return std::count_if(fs::directory_iterator(path.parent_path()), {}, [&](const auto& file) {
        return file.path().filename().string().starts_with(start);
    });
}

/// Another thread removes what crashed writers have left.
inline bool soonNonePending(const fs::path& path) {
    for (int tries = 0; tries < 1000 && countPending(path) > 0; ++tries)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return countPending(path) == 0;
}

inline std::string repeated(std::size_t count, const std::string& bytes) {
    std::string text;
    while (count-- > 0)
        text += bytes;
    return text;
}

inline long countOpenFiles() {
    return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
}

/// An XML property list with `body` in its root dictionary.
inline std::string dictionaryFile(const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict>" + body + "</dict></plist>\n";
}

/// The constant string, or null.
inline const CFString* constantText(const char* ascii) {
    return ascii ? CFSTR(ascii) : nullptr;
}

/// A new folder in the test's sandbox.
inline fs::path makeSandboxFolder(const std::string& name) {
    const auto folder = fs::path(std::getenv("KORVEX_TEST_SANDBOX")) / name;
    fs::create_directories(folder);
    return folder;
}
