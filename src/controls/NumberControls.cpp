// SPDX-License-Identifier: MIT
#include "src/controls/NumberControls.h"

#include "platform/AppKit/NSButton.h"
#include "platform/AppKit/NSTextField.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/controls/NumberController.h"
#include "src/record/numbertext.h"

void NumberControls::setAutoRepeat() const {
    constexpr float kDelaySeconds = 1.0f;
    constexpr float kIntervalSeconds = 0.25f;
    for (NSButton* button : {dec, inc, pageDec, pageInc})
        button->setPeriodicDelay(kDelaySeconds, kIntervalSeconds);
}

void NumberControls::update(const NumberController& controller, const std::string& shown) const {
    const double value = controller.value();
    const double step = controller.step();

    const struct {
        NSButton* button;
        double worth;
        bool enabled;
    } buttons[] = {
        {dec, -step, value > controller.minimum()},
        {pageDec, -step * controller.pageSteps(), value > controller.minimum()},
        {inc, step, controller.maximum() > value},
        {pageInc, step * controller.pageSteps(), controller.maximum() > value},
    };

    for (const auto& [button, worth, enabled] : buttons) {
        const std::string words = worth < 0
                                      ? filled(localized("Numbers", "%1 less"), {text(-worth)})
                                      : filled(localized("Numbers", "%1 more"), {text(worth)});
        button->setEnabled(enabled);
        button->setToolTip(words);
        // The value comes first: a screen reader at the button says it when it changes.
        button->setAccessibilityHelp(filled(
            localized("Numbers", "%1. %2.", "a value, and what a press changes"), {shown, words}));
    }
}

void NumberControls::refuse(double least, double most) const {
    label->refuse(
        filled(localized("Numbers", "Only %1 to %2 can be set."), {text(least), text(most)}));
}

std::string NumberControls::text(double number) const {
    return numberWords(*format ? format : "%g", number);
}
