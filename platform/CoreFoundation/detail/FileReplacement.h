#pragma once

#include <string>
#include <string_view>

// Steps of replacing a file so that at every moment, a crash and a full disk included, its name
// stands for the whole old or the whole new content.

/// An exclusive lock between processes, held while the object lives. It lies on a file of its own,
/// since the guarded file itself is another one after each replacement.
class CFFileLock {
public:
    /// Waits up to two seconds for another holder.
    CFFileLock(const std::string& path, unsigned mode);
    ~CFFileLock();
    CFFileLock(const CFFileLock&) = delete;
    CFFileLock& operator=(const CFFileLock&) = delete;

    bool isHeld() const { return held_; }

private:
    int file_;
    bool held_ = false;
};

/// Makes the folder and those above it that are missing.
bool CFMakeFolders(const std::string& path, unsigned mode);

/// The path at the end of the symbolic links at `path`, whether or not a file is there.
std::string CFResolveLinks(std::string path);

/// A new file's content beside the place where it is going to be, on disk already. Removed again
/// unless it was put there.
class CFPendingFile {
public:
    CFPendingFile(const std::string& destination, std::string_view content, unsigned mode);
    ~CFPendingFile();
    CFPendingFile(const CFPendingFile&) = delete;
    CFPendingFile& operator=(const CFPendingFile&) = delete;

    bool isWritten() const { return written_; }

    /// Renames it over what is at the destination.
    bool putInPlace();

private:
    std::string destination_;
    std::string path_;
    bool written_ = false;
};

/// Gives the file a second name, `path`.damaged-<n> with the first free n.
bool CFKeepAside(const std::string& path);
