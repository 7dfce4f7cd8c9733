// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSControl.h"

#include <string>

/// A button that shows a colour and opens the desktop's colour chooser. The action is sent for
/// every colour tried in the chooser, so that its effect is seen at once; cancelling the chooser
/// sends it once more, with the colour from before. The chooser never blocks the program; it goes,
/// without cancelling, when the well is hidden. In the form it is a QPushButton promoted to
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
    std::string description_; ///< what the form says of the control, in UTF-8
};
