// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"
#include "platform/AppKit/detail/RowText.h"

#include <QWidget>

/// A row of the form with any controls: its children in the form, side by side. It builds caption
/// and explanation from the properties `caption` and accessibleDescription and puts the controls to
/// their right. Alt and the caption's mnemonic act on the row's first control.
class SettingRow final : public QWidget, public FormPart, public FormRow {
public:
    using QWidget::QWidget;

    void build() override;

protected:
    void paintEvent(QPaintEvent* event) override;
};
