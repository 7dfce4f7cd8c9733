// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KeyMoments.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <algorithm>
#include <xcb/xcb.h>

namespace {

constexpr std::uint8_t kSentByPrograms = 0x80; ///< a bit in the event's kind
constexpr std::size_t kMostExpected = 64;      ///< some keys never come to a view

} // namespace

KeyMoments::KeyMoments() {
    qApp->installNativeEventFilter(this);
}

void KeyMoments::restore(QKeyEvent& copy) {
    const auto original = std::ranges::find_if(expected_, [&copy](const Moment& each) {
        return each.type == copy.type() && each.scanCode == copy.nativeScanCode();
    });
    if (original == expected_.end())
        return;
    copy.setTimestamp(original->time);
    expected_.erase(expected_.begin(), original + 1);
}

void KeyMoments::forget(const QKeyEvent& key) {
    while (!expected_.empty() && expected_.front().time <= key.timestamp())
        expected_.pop_front();
}

bool KeyMoments::nativeEventFilter(const QByteArray& kind, void* message, qintptr*) {
    if (kind != "xcb_generic_event_t")
        return false;
    const auto* event = static_cast<const xcb_key_press_event_t*>(message);
    const int type = event->response_type & ~kSentByPrograms;
    if (type != XCB_KEY_PRESS && type != XCB_KEY_RELEASE)
        return false;
    // A repetition is a release and a press with the same time.
    if (type == XCB_KEY_PRESS && !expected_.empty() &&
        expected_.back() == Moment{QEvent::KeyRelease, event->detail, event->time})
        expected_.pop_back();
    else
        expected_.push_back({type == XCB_KEY_PRESS ? QEvent::KeyPress : QEvent::KeyRelease,
                             event->detail, event->time});
    if (expected_.size() > kMostExpected)
        expected_.pop_front();
    return false;
}
