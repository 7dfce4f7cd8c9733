#pragma once

#include "platform/AppKit/NSView.h"

/// A view that draws itself with QuickDraw: while drawRect runs, its picture is the current port,
/// with the same coordinates as the view.
class NSQuickDrawView : public NSView {};
