// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// Has a screen reader say the text, wherever the keyboard is.
void announce(const QString& text);

/// Has a screen reader that is at the widget say its new description.
void announceDescription(const QWidget& widget);
