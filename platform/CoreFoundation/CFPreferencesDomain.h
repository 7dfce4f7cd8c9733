#pragma once

#include "platform/CoreFoundation/CFPropertyList.h"

#include <set>

/// One domain of one user scope: its values in memory, and the file behind them. CFPreferences.h
/// says how they meet.
class CFPreferencesDomain {
public:
    enum class Readers { ThisUser, Everyone };

    /// Reads the file.
    CFPreferencesDomain(std::string path, Readers readers);

    /// Null when the key is absent.
    const CFType* value(const CFString* key) const;
    void setValue(const CFString* key, const CFType* value);
    bool synchronize();

private:
    enum class FileState { Sound, Missing, Damaged, Unreadable };

    FileState refresh();
    void adopt(CFDictionary::Items items);
    bool write(FileState state);

    std::string path_;
    Readers readers_;
    CFRef<CFMutableDictionary> values_; ///< the file's, with the marked keys as they were set here
    CFRef<CFData> content_;             ///< the file's bytes when last read or written, or null
    std::set<std::u16string> marked_;
};
