#include "src/prefpane/BumperController.h"

#include "platform/AppKit/NSButton.h"
#include "src/prefpane/StepButtons.h"

NS_REGISTER_CLASS(BumperController);

std::span<const NSOutlet> BumperController::outlets() const {
    static constexpr NSOutlet table[] = {
        nsOutlet<&BumperController::decBtn_>("decBtn"),
        nsOutlet<&BumperController::incBtn_>("incBtn"),
    };
    return table;
}

std::span<const NSAction> BumperController::actions() const {
    static constexpr NSAction table[] = {
        nsAction<&BumperController::decValue>("decValue:"),
        nsAction<&BumperController::incValue>("incValue:"),
    };
    return table;
}

BumperController* BumperController::setKind(SInt32 kind, void* at, double min, double max,
                                            double inc, ChangeMask changes) {
    setStepButtonsAutoRepeat(decBtn_, incBtn_);
    NumberController::setKind(kind, at, min, max, inc, changes);
    return this;
}

void BumperController::update() {
    updateStepButtons(*this, decBtn_, incBtn_);
}

void BumperController::decValue(NSButton*) {
    dec();
}

void BumperController::incValue(NSButton*) {
    inc();
}
