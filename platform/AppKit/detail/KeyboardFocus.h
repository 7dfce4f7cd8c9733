// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// If `leaving`, which is about to be disabled or hidden, contains the focus, moves it to a place
/// where another key press is harmless: the nearest control of its row or card that is no button.
/// If there is none, to the row itself; Tab then continues in its order.
void moveFocusOutOf(const QWidget* leaving);
