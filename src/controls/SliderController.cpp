// SPDX-License-Identifier: MIT
#include "src/controls/SliderController.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSSlider.h"
#include "platform/AppKit/NSTextField.h"
#include "src/record/numbertext.h"

#include <initializer_list>

REGISTER_CLASS(SliderController);

std::span<const Outlet> SliderController::outlets() const {
    static constexpr Outlet table[] = {
        outletRow<&SliderController::decBtn_>("decBtn"),
        outletRow<&SliderController::incBtn_>("incBtn"),
        outletRow<&SliderController::pageDecBtn_>("pageDecBtn"),
        outletRow<&SliderController::pageIncBtn_>("pageIncBtn"),
        outletRow<&SliderController::title_>("title"),
        outletRow<&SliderController::label_>("label"),
        outletRow<&SliderController::slider_>("slider"),
    };
    return table;
}

std::span<const Action> SliderController::actions() const {
    static constexpr Action table[] = {
        actionRow<&SliderController::decValue>("decValue:"),
        actionRow<&SliderController::incValue>("incValue:"),
        actionRow<&SliderController::decPage>("decPage:"),
        actionRow<&SliderController::incPage>("incPage:"),
        actionRow<&SliderController::typedValue>("typedValue:"),
        actionRow<&SliderController::changedValue>("changedValue:"),
    };
    return table;
}

SliderController* SliderController::setKind(SInt32 kind, void* at, double inc, ChangeMask changes,
                                            const char* labelFormat) {
    labelFormat_ = labelFormat ? labelFormat : "";
    controls().setAutoRepeat();
    NumberController::setKind(kind, at, slider_->minValue(), slider_->maxValue(), inc, changes);
    return this;
}

SliderController* SliderController::setDoubleKindAt(void* at, double inc, ChangeMask changes,
                                                    const char* labelFormat) {
    return setKind(kNumberKindDouble, at, inc, changes, labelFormat);
}

NumberControls SliderController::controls() const {
    return {decBtn_, incBtn_, pageDecBtn_, pageIncBtn_, label_, labelFormat_.c_str()};
}

NSView* SliderController::view() const {
    return label_;
}

void SliderController::update() {
    const double v = value();
    slider_->setDoubleValue(v);
    if (labelFormat_.empty())
        label_->setDoubleValue(v);
    else
        label_->setStringValue(numberText(labelFormat_.c_str(), v));
    controls().update(*this, label_->stringValue());
}

bool SliderController::isPresent() const {
    return slider_->superview() != nullptr;
}

void SliderController::setPresent(bool present) {
    if (isPresent()) {
        if (!container_)
            container_ = slider_->superview();
        if (!present)
            for (NSView* view :
                 std::initializer_list<NSView*>{incBtn_, decBtn_, label_, title_, slider_})
                view->removeFromSuperview();
        container_->setHidden(!present); // what else the row has
    } else if (present && container_) {
        container_->setHidden(false);
        for (NSView* view :
             std::initializer_list<NSView*>{slider_, title_, label_, decBtn_, incBtn_})
            container_->addSubview(view);
    }
}

void SliderController::decValue(NSButton*) {
    dec();
}

void SliderController::incValue(NSButton*) {
    inc();
}

void SliderController::decPage(NSButton*) {
    NumberController::decPage();
}

void SliderController::incPage(NSButton*) {
    NumberController::incPage();
}

void SliderController::changedValue(NSSlider* sender) {
    change(sender->doubleValue());
}

void SliderController::typedValue(NSTextField* sender) {
    if (type(sender->stringValue()))
        update(); // for the same format as other values
    else
        controls().refuse(minimum(), maximum());
}

bool SliderController::hasLimits(double min, double max) const {
    return slider_->minValue() == min && slider_->maxValue() == max;
}
