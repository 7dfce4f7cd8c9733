// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/CarbonEvents.h"

#include "platform/HIToolbox/detail/OutsideEvents.h"

#include <QApplication>

namespace {

UInt32 toCarbon(Qt::KeyboardModifiers held) {
    static constexpr struct {
        Qt::KeyboardModifier modifier;
        UInt32 key;
    } kTable[] = {
        {Qt::MetaModifier, cmdKey},
        {Qt::ShiftModifier, shiftKey},
        {Qt::AltModifier, optionKey},
        {Qt::GroupSwitchModifier, optionKey}, // AltGr is Apple's right option key
        {Qt::ControlModifier, controlKey},
    };

    UInt32 keys = 0;
    for (const auto& row : kTable)
        keys |= held.testFlag(row.modifier) ? row.key : 0;
    return keys;
}

} // namespace

UInt32 GetCurrentEventKeyModifiers() {
    return OutsideEvents::areWe() ? 0 : toCarbon(QGuiApplication::keyboardModifiers());
}

UInt32 GetCurrentKeyModifiers() {
    return toCarbon(QGuiApplication::queryKeyboardModifiers());
}

void SysBeep(SInt16) {
    QApplication::beep();
}
