// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Steps of replacing a file. At every moment its name stands for the whole old or the whole new
// content, even after a crash or on a full disk. Errors are errno numbers, 0 for none.

/// Makes the folder and missing ones above it.
int makeFolders(const std::string& path, unsigned mode);

/// The target of the symbolic links at `path`. It needn't exist.
std::string resolveLinks(std::string path);

/// The same in place, but EACCES at a link that isn't this user's own: in a folder of all, anybody
/// may have put it there.
int resolveOwnLinks(std::string& path);

/// Follows the destination's name in the names of files that aren't in place yet.
constexpr std::string_view kPendingSuffix = ".new";

/// New content in a file beside its destination, on disk. The file is removed unless it is put in
/// place. Its name is unique, so writers without a lock don't share one. Leftovers of crashes are
/// removed first, once they are a minute old.
class PendingFile {
public:
    PendingFile(const std::string& destination, std::string_view content, unsigned mode);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    /// The error of writing it.
    int error() const { return error_; }

    /// Renames it over what is at the destination.
    int putInPlace();

private:
    int write(std::string_view content, unsigned mode);

    std::string destination_;
    std::string path_;
    int error_;
    bool isThere_;
};

/// Gives the file a second name, `path`.damaged-<n> with the first free n. On failure empty, with
/// errno set.
std::string keepAside(const std::string& path);
