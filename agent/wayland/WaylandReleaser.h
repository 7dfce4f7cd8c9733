// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Guard.h"

/// By a virtual pointer over a connection of its own. Keys need nothing: the compositor lets go of
/// those of a keyboard that goes. Null when the compositor can't be reached or has no such
/// pointers.
std::unique_ptr<Releaser> connectWaylandReleaser();
