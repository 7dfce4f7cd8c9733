// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

#include <string>

/// A line of text. A row's value field can be edited and sends its action when another text was
/// typed. A QLineEdit sends it when Return is pressed. Dynamic properties: textColor with the value
/// secondaryLabelColor weakens the colour, in every palette; hidesWhenEmpty hides the field while
/// it is empty.
class NSTextField final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    void setStringValue(std::string_view utf8);
    std::string stringValue() const;

    /// For a value field: shows the earlier text again and explains why what was typed isn't
    /// accepted.
    void refuse(std::string_view why);

    /// Shows the number in the C locale with up to six significant digits: 70, 0.5.
    void setDoubleValue(double value);
};
