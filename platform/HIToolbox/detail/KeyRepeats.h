// SPDX-License-Identifier: MIT
#pragma once

/// For a repeating key X11 reports a release and a new press with the same time. Qt may look at the
/// release before the press has arrived, and take it for a real one. Then a key that is held down
/// would press a button many times. From now on such a pair is a repetition in every window. A
/// second call does nothing.
void correctKeyRepeats();
