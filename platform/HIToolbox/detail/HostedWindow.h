#pragma once

#include "platform/HIToolbox/MacWindows.h"

class QWidget;

/// The Carbon window of a top-level widget that another owns: the same at every call, and gone with
/// the widget.
WindowRef windowRefOf(QWidget* window);
