// SPDX-License-Identifier: MIT
#pragma once

#include "src/pane/profiles/ProfileEditor.h"

/// The wrangler's part for settings from a file, and in one.
class SettingsFiles {
public:
    /// Not owned.
    explicit SettingsFiles(ProfileTarget& target) : target_(target) {}

    ~SettingsFiles();
    SettingsFiles(const SettingsFiles&) = delete;
    SettingsFiles& operator=(const SettingsFiles&) = delete;

    /// Shows what a file has. Nothing changes before the user agrees.
    void importSettings(NSButton* sender);
    void exportSettings(NSButton* sender);

private:
    ProfileTarget& target_;
};
