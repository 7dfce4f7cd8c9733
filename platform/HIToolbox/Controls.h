// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/IconServices/Icons.h"

/// A button or check box of a window from an interface file. The window owns it.
using ControlRef = class CarbonControl*;

/// Identifies a control in an interface file.
struct ControlID {
    OSType signature;
    SInt32 id;

    bool operator==(const ControlID&) const = default;
};

constexpr OSStatus errControlNotFound = -30584;

/// errControlNotFound when the window has no such control.
OSStatus GetControlByID(WindowRef window, const ControlID* id, ControlRef* control);

/// The target of kEventControlHit, sent when the control was operated. The direct object is the
/// control, which already has its new value.
EventTargetRef GetControlEventTarget(ControlRef control);

/// For a check box: 1 when it is on.
SInt32 GetControl32BitValue(ControlRef control);
/// Never sends an event.
void SetControl32BitValue(ControlRef control, SInt32 value);
OSStatus EnableControl(ControlRef control);
OSStatus DisableControl(ControlRef control);
void ShowControl(ControlRef control);
void HideControl(ControlRef control);

using ControlContentType = SInt16;
constexpr ControlContentType kControlNoContent = 0;
constexpr ControlContentType kControlContentIconRef = 132;

/// What a button shows. `iconRef` is used with kControlContentIconRef and borrowed.
struct ControlButtonContentInfo {
    ControlContentType contentType = kControlNoContent;
    IconRef iconRef = nullptr;
};
