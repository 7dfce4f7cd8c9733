// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/MacWindows.h"

class QWidget;

/// The Carbon window for a top-level widget that somebody else owns. Every call gives the same one.
/// It goes with the widget.
WindowRef windowRefOf(QWidget* window);
