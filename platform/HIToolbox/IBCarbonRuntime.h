// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/MacWindows.h"

// Carbon's interface files. They are Qt Designer forms whose direct children are windows,
// identified by name. Buttons and check boxes have dynamic properties:
//
// - controlSignature (four characters) and controlID (a number): see GetControlByID.
// - command (four characters): the command of the kEventCommandProcess that the control sends to
//   its window if nobody handles its kEventControlHit.
// - cancelButton: Escape presses this button.

constexpr OSStatus kIBCarbonRuntimeCantFindNibFile = -10960;
constexpr OSStatus kIBCarbonRuntimeCantFindObject = -10961;

using IBNibRef = class CarbonNib*;

/// Loads <name>.ui from the bundle's resources. kIBCarbonRuntimeCantFindNibFile when it is missing
/// or no form.
OSStatus CreateNibReferenceWithCFBundle(const CFBundle* bundle, const CFString* name,
                                        IBNibRef* nib);
/// The same from the running program's bundle.
OSStatus CreateNibReference(const CFString* name, IBNibRef* nib);
void DisposeNibReference(IBNibRef nib);

/// Makes a window of the file, hidden at first. Each window can be made once.
/// kIBCarbonRuntimeCantFindObject when the file has no window with that name.
OSStatus CreateWindowFromNib(IBNibRef nib, const CFString* windowName, WindowRef* window);
