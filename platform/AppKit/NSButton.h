// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

class QTimer;

enum NSCellState { NSOffState = 0, NSOnState = 1 };

/// A push button or check box. The form's property keyEquivalent, as in "F1", names keys that click
/// it from anywhere in its window.
class NSButton : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    void setTitle(std::string_view utf8);
    std::string title() const; ///< in UTF-8, without the mark of its letter

    int state() const;
    void setState(int state);

    /// Makes the button repeat its action while it is held down, by pointer or by keyboard: first
    /// after `delay` seconds, then every `interval` seconds, until it is released or disabled. The
    /// release that ends a repetition sends nothing more; a short click sends the action once.
    void setPeriodicDelay(float delay, float interval);

private:
    void pressed();
    void repeat();
    void clicked();

    QTimer* timer_ = nullptr; ///< owned by the widget; null until the button is made periodic
    int delayMs_ = 0;
    int intervalMs_ = 0;
    bool hasRepeated_ = false;
};
