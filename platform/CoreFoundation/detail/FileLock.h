// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// An exclusive lock between processes, held while the object lives. It lies on a file of its own,
/// since the guarded file itself is another one after each replacement.
class FileLock {
public:
    /// Waits up to two seconds for another holder.
    FileLock(const std::string& path, unsigned mode);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// 0 when the lock is held, or when the file system has no locks and work goes on without;
    /// EWOULDBLOCK when another holds it; else the errno of opening the file.
    int error() const { return error_; }

private:
    int file_;
    int error_;
};
