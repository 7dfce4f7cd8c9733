// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"
#include "platform/QuickDraw/QuickDraw.h"

/// A view that draws itself with QuickDraw: while drawRect runs, its picture is the current port,
/// with the same coordinates as the view.
class NSQuickDrawView : public NSView {
public:
    /// The view's port while drawRect runs, else null. Borrowed.
    GrafPtr qdPort() const;
};
