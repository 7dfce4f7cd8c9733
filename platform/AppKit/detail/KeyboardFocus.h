#pragma once

class QWidget;

/// If the keyboard focus is in `leaving`, which is about to be disabled or hidden, moves it to the
/// nearest control of the same group, so that the user's place in the window isn't lost; if the
/// group has none left, to the next control of the window.
void moveFocusOutOf(const QWidget* leaving);
