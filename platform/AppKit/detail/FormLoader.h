#pragma once

#include "platform/HIToolbox/detail/FormReader.h"

/// Makes the widgets of a form, the layer's own and the pane's views among them.
class FormLoader final : public FormReader {
public:
    FormLoader();

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

private:
    QStringList knownWidgets_;
};
