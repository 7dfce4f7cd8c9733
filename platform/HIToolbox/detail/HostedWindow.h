// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/MacWindows.h"

class QWidget;

/// The Carbon window for a top-level widget that somebody else owns. Each widget has one, which is
/// destroyed with it.
WindowRef windowRefOf(QWidget* window);
