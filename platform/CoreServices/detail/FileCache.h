// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstdint>
#include <map>
#include <string>

/// One state of what a path names: changes whenever that is written, replaced, made or removed.
struct FileState {
    bool exists = false;
    std::uint64_t device = 0;
    std::uint64_t inode = 0;
    std::int64_t size = 0;
    std::chrono::nanoseconds modified{}, changed{}; ///< since 1970

    bool operator==(const FileState&) const = default;

    /// Whether the next change is sure to show. File systems keep times in steps of up to two
    /// seconds: two changes in one step can't be told apart.
    bool isSettled() const;
};

FileState stateOfFile(const std::string& path);

/// What was read from files and folders, each read again only after it changed.
template <class Value>
class FileCache {
public:
    /// What `read(path)` gave for the path's present state; a default value when nothing is there.
    /// Borrowed until the next call for that path.
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
