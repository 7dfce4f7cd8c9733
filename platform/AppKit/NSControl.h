// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"

/// A view that the user operates. It then sends its action to its target. Setting it from code
/// sends nothing.
class NSControl : public NSView {
public:
    void setEnabled(bool enabled);

    /// Not owned. Without both nothing is sent.
    void setTarget(NSObject* target) { target_ = target; }

    void setAction(SEL action) { action_ = action; }

    /// The tool tip; UTF-8, empty for none.
    void setToolTip(std::string_view text);

protected:
    void sendAction();
    /// The same without an input event as its cause. Keys held during the last event don't count.
    void sendActionOutsideEvents();

private:
    NSObject* target_ = nullptr;
    SEL action_ = nullptr;
};
