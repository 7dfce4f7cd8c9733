// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class NSWindow;

/// Asks where to save a file, in the desktop's own dialogue if it has one. It starts in the user's
/// documents folder, or else the home folder.
class NSSavePanel {
public:
    virtual ~NSSavePanel() = default;

    /// In UTF-8.
    void setTitle(std::string_view utf8) { title_ = utf8; }

    void setNameFieldStringValue(std::string_view utf8) { name_ = utf8; }

    /// Shows the dialogue over the window and returns at once. If a file is chosen before the
    /// window goes, `chosen` is called with its path in the file system's bytes. This object may be
    /// gone by then.
    virtual void beginSheetModalForWindow(const NSWindow& window,
                                          std::function<void(const std::string& path)> chosen);

protected:
    std::string title_, name_;
};

/// Asks for an existing file.
class NSOpenPanel final : public NSSavePanel {
public:
    void beginSheetModalForWindow(const NSWindow& window,
                                  std::function<void(const std::string& path)> chosen) override;
};
