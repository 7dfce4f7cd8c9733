// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QUiLoader>

/// Reads a Designer form.
class FormReader : public QUiLoader {
public:
    /// The form's outermost widget, which the caller owns; null when the file can't be read or
    /// isn't a form. What is wrong with it is added to errors().
    QWidget* loadFile(const QString& path);

    const QStringList& errors() const { return errors_; }

private:
    QStringList errors_;
};
