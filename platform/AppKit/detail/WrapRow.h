// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"

#include <QWidget>

/// Controls side by side: its children in the form. A new line begins where there is no room for
/// the next.
class WrapRow final : public QWidget, public FormPart {
public:
    using QWidget::QWidget;

    void build() override;
};
