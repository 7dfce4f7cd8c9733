// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/HeldKeys.h"

#include "platform/HIToolbox/EventTimers.h"
#include "platform/HIToolbox/detail/EventMoment.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <bitset>
#include <cstdlib>
#include <limits>
#include <memory>
#include <xcb/xcb.h>

namespace {

/// The time of a press from before the counting began.
constexpr quint64 kBefore = std::numeric_limits<quint64>::max();
constexpr quint32 kKeyCount = 256; ///< X11's scan codes

/// The keys that the X11 server reports as down. None on other displays.
std::bitset<kKeyCount> keysDown() {
    std::bitset<kKeyCount> keys;
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    xcb_connection_t* display = x11 ? x11->connection() : nullptr;
    if (!display) // Qt's offscreen platform has the interface, but no connection
        return keys;
    const std::unique_ptr<xcb_query_keymap_reply_t, decltype(&std::free)> reply(
        xcb_query_keymap_reply(display, xcb_query_keymap(display), nullptr), std::free);
    for (quint32 key = 0; reply && key < kKeyCount; ++key)
        keys[key] = reply->keys[key / 8] >> (key % 8) & 1;
    return keys;
}

} // namespace

void HeldKeys::reset() {
    since_.clear();
    resetAt_ = GetCurrentEventTime();
    const auto down = keysDown();
    for (quint32 key = 0; key < kKeyCount; ++key)
        if (down[key])
            since_[key] = kBefore;
}

bool HeldKeys::isRepeat(const QKeyEvent& press) {
    // Assistive technology may look at a press first. Then copies of it come without a time, some
    // without a key.
    if (press.timestamp() == 0)
        return press.isAutoRepeat();
    const auto [key, isNew] = since_.try_emplace(press.nativeScanCode(), press.timestamp());
    const bool wasUnderWay = key->second == kBefore && momentOf(press.timestamp()) <= resetAt_;
    if (wasUnderWay)
        key->second = press.timestamp();
    return press.isAutoRepeat() || (!isNew && key->second != press.timestamp());
}

bool HeldKeys::isUp(const QKeyEvent& release) {
    const quint32 key = release.nativeScanCode();
    if (release.isAutoRepeat() || (key < kKeyCount && keysDown()[key]))
        return false;
    since_.erase(key);
    return true;
}
