// SPDX-License-Identifier: MIT
#pragma once

#include <string>

/// A file of JSON objects, one a line. Each line is a single write at the end, so a reader never
/// sees half a line.
class EventLog {
public:
    /// Writes nothing before it is opened.
    EventLog() = default;
    ~EventLog();
    EventLog(const EventLog&) = delete;
    EventLog& operator=(const EventLog&) = delete;

    /// From now on appends to the file at `path`. A new file gets mode 0600. False with errno set
    /// when it can't be opened.
    bool open(const char* path);

    /// `json` is one JSON object without a line end.
    void append(const std::string& json) const;

private:
    int file_ = -1;
};
