// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class NSWindow;

/// Asks for the place of a file that is to be written, in the desktop's own dialogue where it has
/// one. It begins in the user's documents, or else in the home folder.
class NSSavePanel {
public:
    virtual ~NSSavePanel() = default;

    /// In UTF-8.
    void setTitle(std::string_view utf8) { title_ = utf8; }

    void setNameFieldStringValue(std::string_view utf8) { name_ = utf8; }

    /// Shows the dialogue over the window and returns at once. `chosen` is called with the file's
    /// path, in the file system's bytes, if one is chosen before the window goes; this object isn't
    /// needed any more by then.
    virtual void beginSheetModalForWindow(const NSWindow& window,
                                          std::function<void(const std::string& path)> chosen);

protected:
    std::string title_, name_;
};

/// Asks for a file that exists.
class NSOpenPanel final : public NSSavePanel {
public:
    void beginSheetModalForWindow(const NSWindow& window,
                                  std::function<void(const std::string& path)> chosen) override;
};
