// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"

#include <QWidget>

/// Controls side by side, its children in the form, that go on in a new line where there is no room
/// for one more.
class WrapRow final : public QWidget, public FormPart {
public:
    using QWidget::QWidget;

    void build() override;
};
