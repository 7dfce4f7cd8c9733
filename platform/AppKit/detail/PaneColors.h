// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

class QPalette;

/// The contrast ratio of two colours, 1 to 21, as WCAG defines it.
double contrastBetween(const QColor& a, const QColor& b);

/// The pane's colours. They are derived from the desktop's palette and can be told apart in every
/// one: light, dark or high contrast. Those of the last palette are cached.
struct PaneColors {
    PaneColors() = default;
    explicit PaneColors(const QPalette& palette);

    QColor ground;    ///< of the window
    QColor card;      ///< of a group of rows
    QColor cardLine;  ///< around a card and between its rows: decoration
    QColor text;      ///< 7 : 1 at least, as is the next
    QColor quietText; ///< of explanations
    QColor disabledText;
    QColor mark;       ///< of borders, grooves and unset indicators: 3 : 1 at least
    QColor accent;     ///< of what is set or has the keyboard: 7 : 1 to `onAccent`
    QColor onAccent;   ///< of what is drawn upon it
    QColor chosen;     ///< behind the current section; texts stay readable upon it
    QColor pressed;    ///< of a button that is held down
    QColor buttonFace; ///< of a button that isn't
};
