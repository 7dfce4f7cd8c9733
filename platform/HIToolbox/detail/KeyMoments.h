// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

/// Begins to note the display server's times of key presses and releases. A second call does
/// nothing.
void noteKeyMoments();

/// When a key went down or up, on the clock of EventMoment.h. If assistive technology looks at keys
/// first, Qt delivers copies without times. Then the noted time is used.
double momentOf(const QKeyEvent& event);
