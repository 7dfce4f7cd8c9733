#pragma once

#include "platform/AppKit/NSControl.h"

#include <string>

/// A line of text that the user can't edit.
class NSTextField final : public NSControl {
public:
    void setStringValue(std::string_view utf8);
    std::string stringValue() const;

    /// Shows the number in the C locale with at most six significant digits: 70, 0.5.
    void setDoubleValue(double value);
};
