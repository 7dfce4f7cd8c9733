// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Guard.h"

/// By XTEST, over a connection of its own. Null when DISPLAY can't be reached or lacks it.
std::unique_ptr<Releaser> connectXReleaser();
