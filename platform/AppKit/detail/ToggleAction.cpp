// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/ToggleAction.h"

#include <QAbstractButton>

#include <memory>

void connectToggleAction(QAbstractButton* button, std::function<void()> act) {
    // A click changes the button between press and release.
    const auto isInClick = std::make_shared<bool>(false);
    QObject::connect(button, &QAbstractButton::pressed, button, [=] { *isInClick = true; });
    QObject::connect(button, &QAbstractButton::released, button, [=] { *isInClick = false; });
    QObject::connect(button, &QAbstractButton::toggled, button, [=] {
        if (!*isInClick)
            act();
    });
}
