// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>

/// The text that a label or a field shows.
inline QString shownText(const QWidget* widget) {
    if (const auto* field = qobject_cast<const QLineEdit*>(widget))
        return field->text();
    return static_cast<const QLabel*>(widget)->text();
}
