// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSControl.h"

#include "platform/AppKit/detail/KeyboardFocus.h"
#include "platform/HIToolbox/detail/OutsideEvents.h"

#include <QVariant>
#include <QWidget>

void NSControl::setEnabled(bool enabled) {
    if (!enabled)
        moveFocusOutOf(widget());
    widget()->setEnabled(enabled);
}

void NSControl::setToolTip(std::string_view text) {
    widget()->setToolTip(QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}

void NSControl::sendAction() {
    if (target_ && action_)
        action_->send(*target_, *this);
}

void NSControl::sendActionOutsideEvents() {
    const OutsideEvents outside;
    sendAction();
}
