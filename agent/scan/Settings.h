// SPDX-License-Identifier: MIT
#pragma once

#include "src/record/PrefsRecord.h"

/// The record as the agent uses it, whatever was sent or stored: each number is within its limits,
/// one that isn't finite becomes the nearest limit (the least for one that is no number), an
/// unknown mode, shape or action 0, flags 0 or 1; the pointer's name ends with a zero. Other bytes
/// stay.
PrefsRecord checkedRecord(const PrefsRecord& record);
