// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// An exclusive lock between processes, held while the object exists. It has a file of its own,
/// since the guarded file is replaced.
class FileLock {
public:
    /// Waits up to two seconds while another process holds it.
    FileLock(const std::string& path, unsigned mode);
    ~FileLock();
    FileLock(const FileLock&) = delete;
    FileLock& operator=(const FileLock&) = delete;

    /// 0 when the lock is held, or the file system has no locks. EWOULDBLOCK when another process
    /// holds it. Else the errno of opening the file.
    int error() const { return error_; }

private:
    int file_;
    int error_;
};
