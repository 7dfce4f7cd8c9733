// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

/// A stack of pages, of which one shows. No code acts on it; it is here to be an outlet.
class NSTabView final : public NSView {};
