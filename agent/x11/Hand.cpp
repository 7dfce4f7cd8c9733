// SPDX-License-Identifier: MIT
#include "agent/x11/Hand.h"

#include <cmath>
#include <xcb/xtest.h>

Hand::Hand(XServer& server, Guard& guard) : server_(server), guard_(guard) {
    timer_.setSingleShot(true);
    timer_.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer_, &QTimer::timeout, [this] { step(); });
}

Hand::~Hand() {
    letGo();
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

void Hand::move(Place place) {
    send(XCB_MOTION_NOTIFY, 0, place);
}

void Hand::buttonDown(int button) {
    press({false, server_.deviceButton(static_cast<std::uint32_t>(button))});
}

void Hand::buttonUp(int button) {
    release({false, server_.deviceButton(static_cast<std::uint32_t>(button))});
}

void Hand::keyDown(xcb_keycode_t code) {
    press({true, code});
}

void Hand::keyUp(xcb_keycode_t code) {
    release({true, code});
}

void Hand::press(Held what) {
    const auto [isKey, code] = what;
    if (!held_.insert(what).second)
        return;
    guard_.willHold(isKey, code);
    send(isKey ? XCB_KEY_PRESS : XCB_BUTTON_PRESS, code);
}

void Hand::release(Held what) {
    const auto [isKey, code] = what;
    if (held_.erase(what) == 0)
        return;
    send(isKey ? XCB_KEY_RELEASE : XCB_BUTTON_RELEASE, code);
    guard_.hasLetGo(isKey, code);
}

void Hand::send(std::uint8_t type, std::uint8_t code, Place place) {
    xcb_test_fake_input(server_.connection(), type, code, XCB_CURRENT_TIME, server_.root(),
                        static_cast<std::int16_t>(std::lround(place.x)),
                        static_cast<std::int16_t>(std::lround(place.y)), 0);
    server_.flush();
}
