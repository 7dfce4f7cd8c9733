#pragma once

#include "platform/CoreFoundation/CFPropertyList.h"

/// One domain of one user scope: its values in memory, and the file behind them. CFPreferences.h
/// says how they meet.
class PreferencesDomain {
public:
    enum class Readers { ThisUser, Everyone };

    /// Reads the file.
    PreferencesDomain(std::string path, Readers readers);

    /// Null when the key is absent.
    const CFType* value(const CFString* key) const;
    void setValue(const CFString* key, const CFType* value);
    bool synchronize();

private:
    enum class FileState { Sound, Missing, Damaged, Unreadable };

    FileState refresh();
    CFRef<const CFDictionary> merged() const;
    bool write(FileState state);

    std::string path_;
    Readers readers_;
    CFRef<const CFDictionary> stored_; ///< the file's values when last read or written
    CFRef<const CFData> content_;      ///< the bytes of that file, or null
    CFDictionary::Items changes_;      ///< what was set since; null for a key that was removed
};
