// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>

/// The state of a path's file. It changes when the file is written, replaced, made or removed.
struct FileState {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::chrono::nanoseconds modified{}, changed{}; ///< since 1970

    bool operator==(const FileState&) const = default;

    /// Whether any later change will show. File systems keep times in steps of up to two seconds.
    /// Two changes in one step look alike.
    bool isSettled() const;
};

FileState stateOfFile(const std::string& path);

/// Caches what was read from files and folders. Each is read again only after it changed.
template <class Value>
class FileCache {
public:
    /// The result of `read(path)` for the path's present state. A default value when nothing is
    /// there. Borrowed until the next call for that path.
    template <class Read>
    const Value& get(const std::string& path, Read read) {
        Entry& entry = entries_[path];
        const FileState state = stateOfFile(path);
        if (!entry.settled || entry.state != state)
            entry = {state, state.isSettled(), state.exists ? read(path) : Value()};
        return entry.value;
    }

private:
    struct Entry {
        FileState state;
        bool settled = false;
        Value value;
    };

    std::map<std::string, Entry> entries_;
};
