#pragma once

#include "platform/AppKit/NSControl.h"

/// A stack of pages with a tab each. No code acts on it; it is here to be an outlet.
class NSTabView final : public NSView {};
