#pragma once

#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSControl.h"

/// A button that shows a colour and opens the desktop's colour chooser. The action is sent for every
/// colour tried in the chooser, so that its effect is seen at once; cancelling the chooser sends it
/// once more, with the colour from before. The chooser never blocks the program.
class NSColorWell final : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    NSColor color() const;
    void setColor(const NSColor& color);
};
