// SPDX-License-Identifier: MIT
#include "agent/scan/Actions.h"
#include "src/record/palactions.h"

namespace {

constexpr ActionRow kRows[] = {
#include "ActionRows.inc" // made of agent/artwork/actions.py
};
static_assert(std::size(kRows) == kNumActions);

} // namespace

const std::span<const ActionRow> kActionRows = kRows;
