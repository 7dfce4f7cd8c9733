// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSButton.h"

#include "platform/AppKit/detail/RowText.h"
#include "platform/AppKit/detail/ToggleAction.h"

#include <QAbstractButton>
#include <QShortcut>
#include <QSignalBlocker>
#include <QTimer>
#include <QVariant>

#include <cmath>
#include <utility>

namespace {

int toMilliseconds(float seconds) {
    return static_cast<int>(std::lround(seconds * 1000));
}

} // namespace

void NSButton::attachWidget(QWidget* widget) {
    NSControl::attachWidget(widget);
    auto* button = static_cast<QAbstractButton*>(widget);
    QObject::connect(button, &QAbstractButton::clicked, button, [this] { clicked(); });
    const QString keys = button->property("keyEquivalent").toString();
    if (!keys.isEmpty())
        new QShortcut(QKeySequence(keys), button, button, &QAbstractButton::click);
    connectToggleAction(button, [this] { sendActionOutsideEvents(); });
}

void NSButton::setTitle(std::string_view utf8) {
    static_cast<QAbstractButton*>(widget())->setText(
        QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::string NSButton::title() const {
    return withoutMnemonic(static_cast<const QAbstractButton*>(widget())->text()).toStdString();
}

int NSButton::state() const {
    return static_cast<const QAbstractButton*>(widget())->isChecked() ? NSOnState : NSOffState;
}

void NSButton::setState(int state) {
    auto* button = static_cast<QAbstractButton*>(widget());
    const QSignalBlocker blocker(button);
    button->setChecked(state != NSOffState);
}

void NSButton::setPeriodicDelay(float delay, float interval) {
    delayMs_ = toMilliseconds(delay);
    intervalMs_ = toMilliseconds(interval);
    if (timer_)
        return;
    auto* button = static_cast<QAbstractButton*>(widget());
    button->setAutoRepeat(false);
    timer_ = new QTimer(button);
    timer_->setTimerType(Qt::PreciseTimer);
    QObject::connect(button, &QAbstractButton::pressed, button, [this] { pressed(); });
    QObject::connect(button, &QAbstractButton::released, timer_, &QTimer::stop);
    QObject::connect(timer_, &QTimer::timeout, button, [this] { repeat(); });
}

void NSButton::pressed() {
    hasRepeated_ = false;
    timer_->start(delayMs_);
}

void NSButton::repeat() {
    const auto* button = static_cast<const QAbstractButton*>(widget());
    if (!button->isDown() || !button->isEnabled() || !button->isVisible()) {
        timer_->stop();
        return;
    }
    if (!hasRepeated_)
        timer_->start(intervalMs_);
    hasRepeated_ = true;
    sendAction();
}

void NSButton::clicked() {
    if (!std::exchange(hasRepeated_, false))
        sendAction();
}
