// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KeysDown.h"

#include <QGuiApplication>

#include <cstdlib>
#include <memory>
#include <xcb/xcb.h>

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
