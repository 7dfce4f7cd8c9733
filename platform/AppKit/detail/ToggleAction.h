// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QAbstractButton;

/// Calls `act` whenever a check box or radio button changes without a click: assistive technology
/// toggles it so. Code that sets the button blocks its signals meanwhile.
void connectToggleAction(QAbstractButton* button, std::function<void()> act);
