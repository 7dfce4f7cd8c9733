// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/CarbonControl.h"

#include "platform/HIToolbox/CommandEvents.h"

#include <QVariant>

namespace {

/// The property's four characters as a number. 0 for any other text.
OSType codeProperty(const QAbstractButton& button, const char* name) {
    const QByteArray text = button.property(name).toString().toLatin1();
    OSType code = 0;
    if (text.size() == 4)
        for (const char c : text)
            code = (code << 8) | static_cast<unsigned char>(c);
    return code;
}

} // namespace

CarbonControl::CarbonControl(QAbstractButton& button, CarbonEventTarget& windowTarget)
    : button_(button), windowTarget_(windowTarget), id_{codeProperty(button, "controlSignature"),
                                                        button.property("controlID").toInt()},
      command_(codeProperty(button, "command")) {
    QObject::connect(&button, &QAbstractButton::clicked, &button, [this] { hit(); });
}

// A handler may destroy the window with the control.
void CarbonControl::hit() {
    const ControlRef self = this;
    const UInt32 command = command_;
    CarbonEventTarget& window = windowTarget_;
    EventRecord event(kEventClassControl, kEventControlHit);
    event.with(kEventParamDirectObject, typeControlRef, self);
    if (target_.send(event) != eventNotHandledErr || command == 0)
        return;
    EventRecord process(kEventClassCommand, kEventCommandProcess);
    process.with(kEventParamDirectObject, typeHICommand, HICommand{0, command, {0, 0}});
    window.send(process);
}

EventTargetRef GetControlEventTarget(ControlRef control) {
    return &control->target();
}

SInt32 GetControl32BitValue(ControlRef control) {
    return control->button().isChecked() ? 1 : 0;
}

void SetControl32BitValue(ControlRef control, SInt32 value) {
    control->button().setChecked(value != 0);
}

OSStatus EnableControl(ControlRef control) {
    control->button().setEnabled(true);
    return noErr;
}

OSStatus DisableControl(ControlRef control) {
    control->button().setEnabled(false);
    return noErr;
}

void ShowControl(ControlRef control) {
    control->button().show();
}

void HideControl(ControlRef control) {
    control->button().hide();
}
