#pragma once

#include "platform/AppKit/NSControl.h"

#include <string>

/// A line of text that the user can't edit. The dynamic property textColor with the value
/// secondaryLabelColor makes it quieter than other texts, in every palette.
class NSTextField final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    void setStringValue(std::string_view utf8);
    std::string stringValue() const;

    /// Shows the number in the C locale with at most six significant digits: 70, 0.5.
    void setDoubleValue(double value);
};
