// SPDX-License-Identifier: MIT
#include "src/controls/BumperController.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "src/record/numbertext.h"

REGISTER_CLASS(BumperController);

std::span<const Outlet> BumperController::outlets() const {
    static constexpr Outlet table[] = {
        outletRow<&BumperController::decBtn_>("decBtn"),
        outletRow<&BumperController::incBtn_>("incBtn"),
        outletRow<&BumperController::pageDecBtn_>("pageDecBtn"),
        outletRow<&BumperController::pageIncBtn_>("pageIncBtn"),
        outletRow<&BumperController::label_>("label"),
    };
    return table;
}

std::span<const Action> BumperController::actions() const {
    static constexpr Action table[] = {
        actionRow<&BumperController::decValue>("decValue:"),
        actionRow<&BumperController::incValue>("incValue:"),
        actionRow<&BumperController::decPage>("decPage:"),
        actionRow<&BumperController::incPage>("incPage:"),
        actionRow<&BumperController::typedValue>("typedValue:"),
    };
    return table;
}

BumperController* BumperController::setKind(SInt32 kind, void* at, double min, double max,
                                            double inc, ChangeMask changes) {
    controls().setAutoRepeat();
    NumberController::setKind(kind, at, min, max, inc, changes);
    return this;
}

NumberControls BumperController::controls() const {
    return {decBtn_, incBtn_, pageDecBtn_, pageIncBtn_, label_, format_};
}

NSView* BumperController::view() const {
    return label_;
}

void BumperController::update() {
    label_->setStringValue(display_.text ? display_.text() : numberText(format_, value()));
    controls().update(*this, label_->stringValue());
}

void BumperController::changed() {
    if (display_.apply)
        display_.apply();
    NumberController::changed();
}

void BumperController::decValue(NSButton*) {
    dec();
}

void BumperController::incValue(NSButton*) {
    inc();
}

void BumperController::decPage(NSButton*) {
    NumberController::decPage();
}

void BumperController::incPage(NSButton*) {
    NumberController::incPage();
}

void BumperController::typedValue(NSTextField* sender) {
    const std::string text = sender->stringValue();
    if (!display_.take) {
        type(text) ? update() : controls().refuse(minimum(), maximum());
        return;
    }
    const auto number = numberFromText(text);
    if (number && display_.take(*number))
        update();
    else
        controls().refuse(display_.least, display_.most);
}
