// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The names of the agent's pointers (src/ptrutil.h), in the folder's own order. The folder is read
// once a visit, when a name is first needed. Without an agent or its folder there are no names.

/// The longest name, in bytes.
constexpr int kMaxPointerNameLength = 99;
/// Further names aren't listed.
constexpr int kMaxPointers = 250;

/// Writes the name after or before the current one to `out`, which has kMaxPointerNameLength + 1
/// bytes. It may be the same name. The first follows the last. Letter case is ignored. For a
/// current name that is null, empty or not listed, it is the first or last name. False with `out`
/// unchanged when there are no names.
bool ptrmanGetNextPointer(const char* current, bool forward, char* out);

int ptrmanCountPointers();

/// The name at an index below that count. Borrowed until ptrmanCleanup.
const std::string& ptrmanPointerAt(int index);

/// Forgets all names.
void ptrmanCleanup();
