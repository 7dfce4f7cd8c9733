// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

inline void writeFile(const std::filesystem::path& path, std::string_view bytes) {
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary | std::ios::trunc).write(bytes.data(), std::ssize(bytes));
}

inline std::string readFile(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

/// How many files beside that one were to replace it and haven't.
inline long countPending(const std::filesystem::path& path) {
    const std::string start = path.filename().string() + ".new";
    return std::count_if(
        std::filesystem::directory_iterator(path.parent_path()), {},
        [&](const auto& file) { return file.path().filename().string().starts_with(start); });
}

/// An XML property list with `body` in its root dictionary.
inline std::string dictionaryFile(const std::string& body) {
    return "<?xml version=\"1.0\"?>\n<plist version=\"1.0\"><dict>" + body + "</dict></plist>\n";
}

/// A new folder in the test's sandbox.
inline std::filesystem::path makeSandboxFolder(const std::string& name) {
    const auto folder = std::filesystem::path(std::getenv("KORVEX_TEST_SANDBOX")) / name;
    std::filesystem::create_directories(folder);
    return folder;
}
