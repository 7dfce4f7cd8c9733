// SPDX-License-Identifier: MIT
#include "agent/session/Hand.h"

#include <cmath>
#include <utility>

Hand::Hand(Guard& guard) : guard_(guard) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] { step(); });
}

void Hand::click(const Click& click, std::function<void()> done) {
    finish();
    click_ = click;
    done_ = std::move(done);
    stepsLeft_ = 2 * click.count;
    move(click.place);
    step();
}

/// A button down, or up, or nothing more.
void Hand::step() {
    const bool isDown = stepsLeft_ % 2 == 0;
    --stepsLeft_;
    if (isDown)
        buttonDown(click_.button);
    else
        buttonUp(click_.button);
    if (stepsLeft_ > 0) {
        const double wait = isDown ? click_.duration : click_.pause;
        timer_.start(static_cast<int>(std::lround(wait * 1000)));
    } else if (const auto done = std::exchange(done_, nullptr)) {
        done();
    }
}

void Hand::finish() {
    timer_.stop();
    while (stepsLeft_ > 0) {
        step();
        timer_.stop();
    }
}

void Hand::letGo() {
    timer_.stop();
    stepsLeft_ = 0;
    done_ = nullptr;
    for (const Held& what : std::set(held_))
        release(what);
}

void Hand::buttonDown(int button) {
    press({false, deviceButton(button)});
}

void Hand::buttonUp(int button) {
    release({false, deviceButton(button)});
}

void Hand::keyDown(std::uint8_t code) {
    press({true, code});
}

void Hand::keyUp(std::uint8_t code) {
    release({true, code});
}

void Hand::press(Held what) {
    if (!held_.insert(what).second)
        return;
    guard_.willHold(what);
    send(what, true);
}

void Hand::release(Held what) {
    if (held_.erase(what) == 0)
        return;
    send(what, false);
    guard_.hasLetGo(what);
}
