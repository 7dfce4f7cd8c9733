// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QUiLoader>

/// While it lives, no plug-ins are found.
class WithoutPlugins {
public:
    WithoutPlugins();
    ~WithoutPlugins();

    WithoutPlugins(const WithoutPlugins&) = delete;
    WithoutPlugins& operator=(const WithoutPlugins&) = delete;

private:
    QStringList paths_;
};

/// Reads a Designer form.
class FormReader : public QUiLoader {
public:
    /// Qt would load all of Designer's plug-ins, and with them whole libraries.
    explicit FormReader(const WithoutPlugins& = WithoutPlugins()) {}

    /// The form's outermost widget, owned by the caller. Null when the file can't be read or isn't
    /// a form. Faults are added to errors().
    QWidget* loadFile(const QString& path);

    const QStringList& errors() const { return errors_; }

private:
    QStringList errors_;
};
