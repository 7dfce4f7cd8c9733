#include "src/prefpane/BumperController.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "src/prefpane/numbertext.h"

NS_REGISTER_CLASS(BumperController);

std::span<const NSOutlet> BumperController::outlets() const {
    static constexpr NSOutlet table[] = {
        nsOutlet<&BumperController::decBtn_>("decBtn"),
        nsOutlet<&BumperController::incBtn_>("incBtn"),
        nsOutlet<&BumperController::pageDecBtn_>("pageDecBtn"),
        nsOutlet<&BumperController::pageIncBtn_>("pageIncBtn"),
        nsOutlet<&BumperController::label_>("label"),
    };
    return table;
}

std::span<const NSAction> BumperController::actions() const {
    static constexpr NSAction table[] = {
        nsAction<&BumperController::decValue>("decValue:"),
        nsAction<&BumperController::incValue>("incValue:"),
        nsAction<&BumperController::decPage>("decPage:"),
        nsAction<&BumperController::incPage>("incPage:"),
        nsAction<&BumperController::typedValue>("typedValue:"),
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
