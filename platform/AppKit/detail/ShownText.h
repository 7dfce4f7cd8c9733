// SPDX-License-Identifier: MIT
#pragma once

#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>

/// The text that a label or a field shows.
inline QString shownText(const QWidget* widget) {
    if (const auto* field = qobject_cast<const QLineEdit*>(widget))
        return field->text();
    return static_cast<const QLabel*>(widget)->text();
}

/// A sentence in a language that is read from the left, which a name from the right may begin. The
/// mark keeps its direction.
inline QString keptInDirection(const QString& text) {
    constexpr QChar kLeftToRightMark(0x200E);
    const bool isTurned = QGuiApplication::isLeftToRight() && text.isRightToLeft();
    return isTurned ? kLeftToRightMark + text : text;
}
