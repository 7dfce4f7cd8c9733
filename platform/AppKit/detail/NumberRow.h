// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/detail/FormPart.h"
#include "platform/AppKit/detail/RowText.h"

#include <QWidget>

class QAbstractButton;
class QHBoxLayout;
class SliderWidget;
class ValueField;

/// A row of the form for a number. It builds caption, explanation, minus and plus buttons for one
/// step and for many, a slider, and a field with the value. Each has a name for assistive
/// technology. Tab goes to minus, field and plus; the field's arrow
/// keys move by a step of the slider, its page keys as the buttons for many steps. They are
/// outlets of the controller that the row's customClass makes: decBtn, incBtn,
/// pageDecBtn, pageIncBtn, label and, with limits, title and slider. Properties in the form:
///
/// - caption, with a mnemonic marked by “&”; accessibleName, if it differs from the caption;
///   accessibleDescription: the explanation that is shown;
/// - less, more: what its buttons do, as in "Volume, louder";
/// - minValue, maxValue, decimals: the slider's limits and its decimal places; without limits there
///   is no slider;
/// - indented: the row belongs to the radio button above it.
class NumberRow final : public QWidget, public FormPart, public FormRow {
public:
    using QWidget::QWidget;

    void build() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    template <class Part>
    Part* make(const char* suffix, const char* outlet, const char* action);
    QAbstractButton* makeButton(const char* suffix, const char* outlet, const char* action,
                                const char* text, const QString& name);
    SliderWidget* addSlider(QHBoxLayout& controls);

    struct Buttons {
        QAbstractButton *muchLess, *less, *more, *muchMore;
    };

    void setUpKeys(Buttons buttons, ValueField& field, SliderWidget* slider);
};
