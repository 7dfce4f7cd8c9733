// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

/// A stack of pages that shows one at a time. No code uses it; outlets need the class.
class NSTabView final : public NSView {};
