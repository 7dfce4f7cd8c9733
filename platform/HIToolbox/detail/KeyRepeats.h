// SPDX-License-Identifier: MIT
#pragma once

/// Each press is one press, with its own time, in every window from now on.
///
/// For a repeating key X11 reports a release and a new press with the same time. Qt may look at the
/// release before the press has arrived, and take it for a real one. Then a key that is held down
/// would press a button many times. Such a pair is a repetition.
///
/// If assistive technology looks at keys first, Qt delivers copies without times. They get their
/// originals' times.
///
/// A later call puts this in front of the application's other event filters.
void correctKeyRepeats();
