// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/ModifierKeys.h"

#include "platform/CoreFoundation/CFBase.h"
#include "platform/Support/ScanCodes.h"

#include <QKeyEvent>

#include <algorithm>

namespace {

constexpr UInt16 kFirstModifier = 0x36;
constexpr UInt16 kLastModifier = 0x3F; // fn

} // namespace

bool isModifierKey(const QKeyEvent& event) {
    static constexpr int kModifiers[] = {
        Qt::Key_Shift,   Qt::Key_Control, Qt::Key_Meta,    Qt::Key_Alt,     Qt::Key_AltGr,
        Qt::Key_Super_L, Qt::Key_Super_R, Qt::Key_Hyper_L, Qt::Key_Hyper_R, Qt::Key_Mode_switch,
    };

    const UInt16 code = virtualKeyCode(event.nativeScanCode());
    return (code >= kFirstModifier && code <= kLastModifier) ||
           std::find(std::begin(kModifiers), std::end(kModifiers), event.key()) !=
               std::end(kModifiers);
}
