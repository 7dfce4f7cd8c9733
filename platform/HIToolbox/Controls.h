#pragma once

#include "platform/IconServices/Icons.h"

using ControlContentType = SInt16;
constexpr ControlContentType kControlNoContent = 0;
constexpr ControlContentType kControlContentIconRef = 132;

/// What a button shows. `iconRef` counts for kControlContentIconRef, and is borrowed.
struct ControlButtonContentInfo {
    ControlContentType contentType = kControlNoContent;
    IconRef iconRef = nullptr;
};
