// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

/// If the keyboard focus is in `leaving`, which is about to be disabled or hidden, moves it to
/// where one more press of a key does no harm: to the nearest control of its row or card that isn't
/// a button, or else to the row itself, from where Tab goes on in its order.
void moveFocusOutOf(const QWidget* leaving);
