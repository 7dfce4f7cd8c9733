#pragma once

#include <QStringList>
#include <QUiLoader>

/// Reads a Designer form and makes its widgets, the layer's own and the pane's views among them.
class FormLoader final : public QUiLoader {
public:
    /// The form's outermost widget, which the caller owns; null when the file can't be read or
    /// isn't a form. What is wrong with it is added to errors().
    QWidget* loadFile(const QString& path);

    const QStringList& errors() const { return errors_; }

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

private:
    QStringList errors_;
    QStringList knownWidgets_;
};
