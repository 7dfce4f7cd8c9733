// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// Makes a screen reader say the text, wherever the focus is.
void announce(const QString& text);

/// Makes a screen reader that is at the widget say its new description.
void announceDescription(const QWidget& widget);
