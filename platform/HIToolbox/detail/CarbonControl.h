// SPDX-License-Identifier: MIT
#pragma once

#include "platform/HIToolbox/Controls.h"
#include "platform/HIToolbox/detail/EventRecord.h"

#include <QAbstractButton>

/// A button or check box of a Carbon window.
class CarbonControl {
public:
    /// The button's dynamic properties describe it (IBCarbonRuntime.h). Its command goes to
    /// `windowTarget`. Owns neither; both outlive the control.
    CarbonControl(QAbstractButton& button, CarbonEventTarget& windowTarget);

    QAbstractButton& button() const { return button_; }

    CarbonEventTarget& target() { return target_; }

    const ControlID& id() const { return id_; }

    /// 0 for none.
    UInt32 command() const { return command_; }

private:
    void hit();

    QAbstractButton& button_;
    CarbonEventTarget& windowTarget_;
    CarbonEventTarget target_;
    ControlID id_;
    UInt32 command_;
};
