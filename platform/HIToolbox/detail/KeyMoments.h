// SPDX-License-Identifier: MIT
#pragma once

class QKeyEvent;

/// Begins to note when the display server says that keys go down and up. Calling it again does
/// nothing.
void noteKeyMoments();

/// When a key went down or up, as momentOf of EventMoment.h. While assistive technology looks at
/// keys first, Qt hands on copies of the events without their times: what was noted is taken then.
double momentOf(const QKeyEvent& event);
