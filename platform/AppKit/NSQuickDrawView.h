// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSView.h"
#include "platform/QuickDraw/QuickDraw.h"

/// A view that draws itself with QuickDraw. While drawRect runs, its port is the current one, with
/// the view's coordinates.
class NSQuickDrawView : public NSView {
public:
    /// The view's port while drawRect runs, else null. Borrowed.
    GrafPtr qdPort() const;
};
