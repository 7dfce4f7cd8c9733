// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

#include <string>

/// A line of text. A row's value field can be edited: it sends its action when another text was
/// typed; a QLineEdit of the form does when Return is pressed. The dynamic property textColor with
/// the value secondaryLabelColor makes it quieter than other texts, in every palette;
/// hidesWhenEmpty takes it out of sight while it has no text.
class NSTextField final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    void setStringValue(std::string_view utf8);
    std::string stringValue() const;

    /// Of a field: puts back what was shown and tells, in words, why what was typed isn't taken.
    void refuse(std::string_view why);

    /// Shows the number in the C locale with at most six significant digits: 70, 0.5.
    void setDoubleValue(double value);
};
