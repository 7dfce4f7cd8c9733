#include "platform/HIToolbox/CarbonEvents.h"

#include <QApplication>

UInt32 GetCurrentEventKeyModifiers() {
    static constexpr struct {
        Qt::KeyboardModifier modifier;
        UInt32 key;
    } kTable[] = {
        {Qt::MetaModifier, cmdKey},
        {Qt::ShiftModifier, shiftKey},
        {Qt::AltModifier, optionKey},
        {Qt::ControlModifier, controlKey},
    };

    const Qt::KeyboardModifiers held = QGuiApplication::keyboardModifiers();
    UInt32 keys = 0;
    for (const auto& row : kTable)
        keys |= held.testFlag(row.modifier) ? row.key : 0;
    return keys;
}

void SysBeep(SInt16) {
    QApplication::beep();
}
