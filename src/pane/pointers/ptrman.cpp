// SPDX-License-Identifier: MIT
#include "src/pane/pointers/ptrman.h"

#include "src/files/ptrutil.h"
#include "src/link/Daemon.h"

#include <algorithm>
#include <cctype>
#include <cstring>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kExtension = ".png";
constexpr CFIndex kMaxFolderPath = 1024; ///< bytes

/// None until the folder has been read.
std::optional<std::vector<std::string>> pointers;

bool equalIgnoringCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](unsigned char x, unsigned char y) {
        return std::tolower(x) == std::tolower(y);
    });
}

/// The pointer's name. Empty when the entry is no pointer.
std::string pointerNameOf(const fs::directory_entry& entry) {
    const std::string file = entry.path().filename().string();
    std::error_code error;
    if (file.size() <= kExtension.size() ||
        file.size() > kMaxPointerNameLength + kExtension.size() ||
        !fs::is_regular_file(entry.symlink_status(error)))
        return {};
    const std::size_t base = file.size() - kExtension.size();
    return equalIgnoringCase(file.substr(base), kExtension) ? file.substr(0, base) : std::string();
}

std::vector<std::string> readFolder(const char* path) {
    std::vector<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error)) {
        std::string name = pointerNameOf(*entry);
        if (!name.empty())
            names.push_back(std::move(name));
        if (names.size() == kMaxPointers)
            break;
    }
    return names;
}

std::vector<std::string> readPointers() {
    const CFBundle* bundle = daemonMainBundle();
    if (!bundle)
        return {};
    const auto resources = CFBundleCopyResourcesDirectoryURL(bundle);
    const auto folder =
        CFURLCreateCopyAppendingPathComponent(resources.get(), CFSTR(kPointersFolder), true);
    char path[kMaxFolderPath + 1];
    return CFURLGetFileSystemRepresentation(folder.get(), path, sizeof path)
               ? readFolder(path)
               : std::vector<std::string>();
}

const std::vector<std::string>& allPointers() {
    if (!pointers)
        pointers = readPointers();
    return *pointers;
}

} // namespace

bool ptrmanGetNextPointer(const char* current, bool forward, char* out) {
    const std::vector<std::string>& names = allPointers();
    if (names.empty())
        return false;
    const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
        return current && equalIgnoringCase(name, current);
    });
    const bool isListed = found != names.end();
    auto next = names.begin();
    if (forward && isListed && found + 1 != names.end())
        next = found + 1;
    else if (!forward)
        next = (isListed && found != names.begin() ? found : names.end()) - 1;
    std::memcpy(out, next->c_str(), next->size() + 1);
    return true;
}

int ptrmanCountPointers() {
    return static_cast<int>(allPointers().size());
}

const std::string& ptrmanPointerAt(int index) {
    return allPointers()[static_cast<std::size_t>(index)];
}

void ptrmanCleanup() {
    pointers.reset();
}
