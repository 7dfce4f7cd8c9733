// SPDX-License-Identifier: MIT
#pragma once

#include <string>

// The names of the agent's pointers (src/ptrutil.h), in the order of the folder's listing. The
// folder is read when a name is first asked for, and again in the next visit. Without an agent or
// its folder there are no names.

/// The longest name, in bytes.
constexpr int kMaxPointerNameLength = 99;
/// Further names aren't listed.
constexpr int kMaxPointers = 250;

/// Writes the name after or before the current one to `out`, which has kMaxPointerNameLength + 1
/// bytes; it may be the same one. After the last name comes the first. Letter case is ignored; a
/// current name that is null, empty or not listed gives the first or last name. False, with `out`
/// left as it was, when there are no names.
bool ptrmanGetNextPointer(const char* current, bool forward, char* out);

int ptrmanCountPointers();

/// The name at an index from 0 to below that count. Borrowed until the names are forgotten.
const std::string& ptrmanPointerAt(int index);

/// Forgets all names.
void ptrmanCleanup();
