// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

// Steps of replacing a file so that at every moment, a crash and a full disk included, its name
// stands for the whole old or the whole new content. Errors are errno's numbers, 0 for none.

/// Makes the folder and those above it that are missing.
int makeFolders(const std::string& path, unsigned mode);

/// The path at the end of the symbolic links at `path`, whether or not a file is there.
std::string resolveLinks(std::string path);

/// Begins what follows the destination's name in the names of files that aren't put in place yet.
constexpr std::string_view kPendingSuffix = ".new";

/// A new file's content beside the place where it is going to be, on disk already. Removed again
/// unless it was put there. Its name is its own, so that writers without a lock never take each
/// other's. What crashes left is removed first, once it is a minute old.
class PendingFile {
public:
    PendingFile(const std::string& destination, std::string_view content, unsigned mode);
    ~PendingFile();
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    /// Of writing it.
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

/// Gives the file a second name, `path`.damaged-<n> with the first free n. Empty with errno set
/// when it can't.
std::string keepAside(const std::string& path);
