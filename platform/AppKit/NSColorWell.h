// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSControl.h"

#include <string>

/// A button that shows a colour and opens a page of colours, from which the desktop's chooser is
/// one press away. The action is sent for every colour tried there, so its effect shows at once.
/// Cancelling sends it again with the original colour. The page never blocks. When the well is
/// hidden, the page closes without cancelling. In the form the well is a QPushButton promoted to
/// NSColorWell.
class NSColorWell final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    NSColor color() const { return color_; }

    void setColor(const NSColor& color);

private:
    void openChooser();
    void choose(const NSColor& color);

    NSColor color_ = NSColor::colorWithDeviceRed(0, 0, 0, 1);
    std::string description_; ///< from the form, in UTF-8
};
