// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QUiLoader>

/// Reads a Designer form. Designer's plug-ins aren't looked for: Qt would load all of them, and
/// with them whole libraries.
class FormReader : public QUiLoader {
public:
    FormReader() : FormReader(WithoutPlugins()) {}

    /// The form's outermost widget, owned by the caller. Null when the file can't be read or isn't
    /// a form. Faults are added to errors().
    QWidget* loadFile(const QString& path);

    const QStringList& errors() const { return errors_; }

private:
    /// While it exists, Qt finds no plug-ins.
    class WithoutPlugins {
    public:
        WithoutPlugins();
        ~WithoutPlugins();

        WithoutPlugins(const WithoutPlugins&) = delete;
        WithoutPlugins& operator=(const WithoutPlugins&) = delete;

    private:
        QStringList paths_;
    };

    /// QUiLoader looks for plug-ins as it is constructed, which is while the argument exists.
    explicit FormReader(const WithoutPlugins&) {}

    QStringList errors_;
};
