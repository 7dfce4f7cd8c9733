#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <span>

// Each reads the bytes as a file of its kind and ends the process with a message when what it gives
// contradicts itself. Any bytes may come.

void read_propertylist(std::span<const UInt8> bytes);
void read_iconfamily(std::span<const UInt8> bytes);
