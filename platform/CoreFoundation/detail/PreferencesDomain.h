// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/PreferencesOutcome.h"

/// One domain of one user scope: its values in memory and its file. CFPreferences.h describes it.
class PreferencesDomain {
public:
    enum class Readers { ThisUser, Everyone };

    /// Reads the file.
    PreferencesDomain(std::string path, Readers readers);

    /// Null when the key is absent.
    const CFType* value(const CFString* key) const;
    void setValue(const CFString* key, const CFType* value);
    /// See PreferencesMerging.h.
    void giveWay(const CFString* key, const CFType* seen);
    bool synchronize();

    // See PreferencesOutcome.h.

    const FileOutcome& loadOutcome() const { return loaded_; }

    const FileOutcome& saveOutcome() const { return saved_; }

    FileOutcome saveOutlook() const;

    bool isUnsaved() const { return !changes_.empty(); }

    FileOutcome saveCopy(const std::string& path) const;

private:
    enum class FileState { Sound, Missing, Damaged, Unreadable };

    struct Change {
        CFRef<const CFType> value; ///< null for a key that was removed
        bool givesWay = false;     ///< to a stored value other than `seen`
        CFRef<const CFType> seen;
    };

    FileState refresh();
    FileState note(FileState state, int error = 0);
    CFRef<const CFDictionary> merged() const;

    std::string folder() const { return path_.substr(0, path_.rfind('/')); }

    FileOutcome save();
    FileOutcome write(FileState state);

    std::string path_;
    Readers readers_;
    CFRef<const CFDictionary> stored_;         ///< the file's values when last read or written
    CFRef<const CFData> content_;              ///< the bytes of that file, or null
    std::map<std::u16string, Change> changes_; ///< what was set since
    FileOutcome loaded_;
    FileOutcome saved_;
};
