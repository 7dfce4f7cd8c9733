// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"
#include "platform/HIToolbox/detail/FormReader.h"

#include <vector>

/// Makes the widgets of a form, including the layer's own and the pane's views.
class FormLoader final : public FormReader {
public:
    FormLoader();

    /// Like loadFile. It also builds the parts of rows, frames and lists, and makes Tab follow the
    /// reading order.
    QWidget* loadForm(const QString& path);

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override;

private:
    QStringList knownWidgets_;
    std::vector<FormPart*> parts_; ///< outer ones first
};
