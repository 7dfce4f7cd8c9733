// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/HIToolbox/MacWindows.h"

// Carbon's interface files: a Qt Designer form whose direct children are windows, told by their
// names. Dynamic properties of the buttons and check boxes in them say what they are to Carbon:
//
// - controlSignature (four characters) and controlID (a number): see GetControlByID.
// - command (four characters): the kEventCommandProcess that the control sends to its window when
//   nobody has handled its kEventControlHit.
// - cancelButton: the button that Escape presses.

constexpr OSStatus kIBCarbonRuntimeCantFindNibFile = -10960;
constexpr OSStatus kIBCarbonRuntimeCantFindObject = -10961;

using IBNibRef = class CarbonNib*;

/// Loads <name>.ui from the bundle's resources. kIBCarbonRuntimeCantFindNibFile when it isn't there
/// or is no form.
OSStatus CreateNibReferenceWithCFBundle(const CFBundle* bundle, const CFString* name,
                                        IBNibRef* nib);
/// The same from the running program's own bundle.
OSStatus CreateNibReference(const CFString* name, IBNibRef* nib);
void DisposeNibReference(IBNibRef nib);

/// Makes a window of the file, hidden still; one name once. kIBCarbonRuntimeCantFindObject when the
/// file has no window of that name.
OSStatus CreateWindowFromNib(IBNibRef nib, const CFString* windowName, WindowRef* window);
