// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QAbstractButton;

/// Calls `act` when a check box or radio button changes without a click, as assistive technology
/// does it. Code that sets the button must block its signals.
void connectToggleAction(QAbstractButton* button, std::function<void()> act);
