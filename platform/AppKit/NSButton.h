// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSControl.h"

class QTimer;

enum { NSOffState = 0, NSOnState = 1 };

/// A push button or check box. The dynamic property keyEquivalent names keys, such as "F1", that
/// click it from anywhere in its window.
class NSButton : public NSControl {
public:
    void attachWidget(QWidget* widget) override;

    void setTitle(std::string_view utf8);
    std::string title() const; ///< in UTF-8, without the mnemonic's mark

    int state() const;
    void setState(int state);

    /// Repeats the action while the button is held down by mouse or keyboard: first after `delay`
    /// seconds, then every `interval` seconds. A short click sends the action once. The release
    /// after a repetition sends nothing. Disabling the button stops it.
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
