// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A file that receives one JSON object a line; each line is one write at the file's end, so that
/// a reader never sees half of one.
class EventLog {
public:
    /// Writes to standard output.
    EventLog() = default;
    ~EventLog();
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    /// Appends to the file at `path` from now on, made with mode 0600 if it isn't there. False,
    /// with the reason in errno, when it can't be opened.
    bool open(const char* path);

    /// `json` is a whole JSON object without a line end.
    void append(const std::string& json) const;

private:
    int file_ = 1;
};
