#include "src/prefpane/StepButtons.h"

#include "platform/AppKit/NSButton.h"
#include "src/prefpane/NumberController.h"

void setStepButtonsAutoRepeat(NSButton* decBtn, NSButton* incBtn) {
    constexpr float kDelaySeconds = 1.0f;
    constexpr float kIntervalSeconds = 0.25f;
    decBtn->setPeriodicDelay(kDelaySeconds, kIntervalSeconds);
    incBtn->setPeriodicDelay(kDelaySeconds, kIntervalSeconds);
}

void updateStepButtons(const NumberController& controller, NSButton* decBtn, NSButton* incBtn) {
    const double value = controller.value();
    decBtn->setEnabled(value > controller.minimum());
    incBtn->setEnabled(controller.maximum() > value);
}
