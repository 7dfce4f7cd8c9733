// SPDX-License-Identifier: MIT
#pragma once

class NSButton;

/// The wrangler's part for snapping: a check box for a setting beside the record. A change is
/// stored at once.
class SnappingRow {
public:
    NSButton* check = nullptr; ///< filled by the interface file; not owned

    SnappingRow() = default;
    ~SnappingRow();
    SnappingRow(const SnappingRow&) = delete;
    SnappingRow& operator=(const SnappingRow&) = delete;

    /// Shows what is stored.
    void load();
    /// Takes the check box's state, and offers to undo that.
    void changedSnapping();

private:
    void set(bool isOn, const char* pattern);
};
