// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSMenuItem.h"

void NSMenuItem::sendAction() {
    if (canSendAction())
        action_->send(*target_, *this);
}
