// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/NumberRow.h"

#include "platform/AppKit/detail/PutBackButton.h"
#include "platform/AppKit/detail/RowLayout.h"
#include "platform/AppKit/detail/RowText.h"
#include "platform/AppKit/detail/SliderWidget.h"
#include "platform/AppKit/detail/ValueField.h"

#include <QCoreApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVariant>

#include <cmath>

namespace {

constexpr int kGap = 6; // points between neighbouring controls
constexpr int kSliderWidth = 150;
constexpr int kLeastSliderWidth = 48;
constexpr int kPagePositions = 10; // steps of the page keys

} // namespace

template <class Part>
Part* NumberRow::make(const char* suffix, const char* outlet, const char* action) {
    auto* part = new Part(this);
    part->setObjectName(objectName() + QLatin1String(suffix));
    part->setProperty("outlet", QLatin1String(outlet));
    if (action)
        part->setProperty("action", QLatin1String(action));
    part->setAccessibleName(accessibleName());
    part->setAccessibleDescription(accessibleDescription());
    return part;
}

QAbstractButton* NumberRow::makeButton(const char* suffix, const char* outlet, const char* action,
                                       const char* text, const QString& name) {
    auto* button = make<QToolButton>(suffix, outlet, action);
    button->setText(QString::fromUtf8(text));
    button->setAccessibleName(name);
    return button;
}

SliderWidget* NumberRow::addSlider(QHBoxLayout& controls) {
    auto* slider = make<SliderWidget>("Slider", "slider", "changedValue:");
    slider->setOrientation(Qt::Horizontal);
    const double range = property("maxValue").toDouble() - property("minValue").toDouble();
    slider->setRange(
        0, static_cast<int>(std::lround(range * std::pow(10, property("decimals").toInt()))));
    slider->setPageStep(kPagePositions);
    for (const char* limit : {"minValue", "maxValue"})
        slider->setProperty(limit, property(limit));
    slider->setMinimumWidth(kLeastSliderWidth);
    slider->setPreferredWidth(kSliderWidth);
    slider->setFocusPolicy(Qt::ClickFocus);
    controls.addWidget(slider, 1);
    return slider;
}

/// Less, value, more: the keys of the value do what the other parts do for the mouse.
void NumberRow::setUpKeys(Buttons buttons, ValueField& field, SliderWidget* slider) {
    for (auto* stop : {buttons.less, buttons.more})
        stop->setFocusPolicy(Qt::StrongFocus);
    for (auto* other : {buttons.muchLess, buttons.muchMore})
        other->setFocusPolicy(Qt::ClickFocus);
    field.onStep = [buttons, slider](ValueField::Step step) {
        using enum ValueField::Step;
        if (step == MuchLess || step == MuchMore)
            (step == MuchMore ? buttons.muchMore : buttons.muchLess)->click();
        else if (slider)
            slider->triggerAction(step == More ? QAbstractSlider::SliderSingleStepAdd
                                               : QAbstractSlider::SliderSingleStepSub);
        else
            (step == More ? buttons.more : buttons.less)->click();
    };
}

void NumberRow::build() {
    const QString caption = property("caption").toString();
    if (accessibleName().isEmpty())
        setAccessibleName(withoutMnemonic(caption));
    const auto named = [this](const char* property, const QString& how) {
        return how.arg(accessibleName(), this->property(property).toString());
    };
    //: As in "Volume, louder"
    const QString step = QCoreApplication::translate("NumberRow", "%1, %2");
    const QString page = QCoreApplication::translate("NumberRow", "%1, much %2");
    const bool hasSlider = property("maxValue").isValid();

    const RowText text(*this, caption, accessibleDescription());
    auto* putBack = new PutBackButton(this); // before the controls in reading order
    auto* controls = new QHBoxLayout;
    controls->setContentsMargins(0, 0, 0, 0);
    controls->setSpacing(kGap);
    Buttons buttons;
    buttons.muchLess =
        makeButton("PageDecBtn", "pageDecBtn", "decPage:", "−−", named("less", page));
    buttons.less = makeButton("DecBtn", "decBtn", "decValue:", "−", named("less", step));
    controls->addWidget(buttons.muchLess);
    controls->addWidget(buttons.less);
    SliderWidget* slider = hasSlider ? addSlider(*controls) : nullptr;
    // Here for Tab, which follows the order of the parts.
    auto* field = make<ValueField>("Label", "label", "typedValue:");
    buttons.more = makeButton("IncBtn", "incBtn", "incValue:", "+", named("more", step));
    buttons.muchMore =
        makeButton("PageIncBtn", "pageIncBtn", "incPage:", "++", named("more", page));
    controls->addWidget(buttons.more);
    controls->addWidget(buttons.muchMore);
    if (!hasSlider)
        controls->addStretch();
    field->setExplanation(text.explanation);
    controls->addWidget(field);
    setUpKeys(buttons, *field, slider);
    if (hasSlider)
        text.caption->setProperty("outlet", QStringLiteral("title"));
    text.caption->setBuddy(field);
    new RowLayout(this, text, controls, putBack, rowIndent(*this));
}

void NumberRow::paintEvent(QPaintEvent*) {
    drawRowLine(*this);
}
