// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/Sheets.h"

#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "platform/HIToolbox/detail/SheetShade.h"

OSStatus ShowSheetWindow(WindowRef sheet, WindowRef parent) {
    new SheetShade(&parent->widget(), &sheet->widget()); // the parent owns it
    return noErr;
}

OSStatus HideSheetWindow(WindowRef sheet) {
    if (!areWindowsLeft)
        delete dynamic_cast<SheetShade*>(sheet->widget().parentWidget());
    return noErr;
}
