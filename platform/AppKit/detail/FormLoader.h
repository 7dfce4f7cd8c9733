// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"
#include "platform/HIToolbox/detail/FormReader.h"

#include <vector>

/// Makes the widgets of a form, the layer's own and the pane's views among them.
class FormLoader final : public FormReader {
public:
    FormLoader();

    /// As loadFile, with the parts of rows, frames and lists built and the Tab key going through
    /// all in the reading order.
    QWidget* loadForm(const QString& path);

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

private:
    QStringList knownWidgets_;
    std::vector<FormPart*> parts_; ///< those around others first
};
