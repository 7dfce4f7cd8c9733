// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"

/// A view that a user operates. When it is operated it sends its action to its target; setting it
/// from code never does.
class NSControl : public NSView {
public:
    void setEnabled(bool enabled);

    /// Neither is owned; without both, nothing is sent.
    void setTarget(NSObject* target) { target_ = target; }

    void setAction(SEL action) { action_ = action; }

    /// What is shown beside the pointer when it rests on the control; UTF-8, empty for nothing.
    void setToolTip(std::string_view text);

protected:
    void sendAction();
    /// The same when no event of the user's brought it about: the keys that were held with the last
    /// event don't count.
    void sendActionOutsideEvents();

private:
    NSObject* target_ = nullptr;
    SEL action_ = nullptr;
};
