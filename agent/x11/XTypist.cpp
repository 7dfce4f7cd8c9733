// SPDX-License-Identifier: MIT
#include "agent/x11/XTypist.h"

#include "agent/x11/KeyLayout.h"

#include <cmath>
#include <utility>
#include <xkbcommon/xkbcommon.h>

namespace {

constexpr int kMillisecondsASecond = 1000;

} // namespace

XTypist::XTypist(XServer& server, Hand& hand) : Typist(hand), server_(server) {
    lentUntil_.setSingleShot(true);
    lentUntil_.setInterval(static_cast<int>(std::lround(kLentFor * kMillisecondsASecond)));
    QObject::connect(&lentUntil_, &QTimer::timeout, [this] { giveBack(); });
}

XTypist::~XTypist() {
    giveBack();
}

std::vector<std::optional<std::uint8_t>>
XTypist::keysNamed(const std::vector<std::string>& symbols) {
    const auto layout = KeyLayout::read();
    std::vector<std::optional<std::uint8_t>> keys;
    for (const std::string& symbol : symbols)
        keys.push_back(layout ? keyIn(*layout, symbol) : std::nullopt);
    return keys;
}

std::optional<xcb_keycode_t> XTypist::keyIn(const KeyLayout& layout, const std::string& name) {
    const std::uint32_t symbol = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_NO_FLAGS);
    if (lent_ && lent_->symbol == symbol) {
        lentUntil_.start();
        return lent_->code;
    }
    const auto code = layout.keyFor(symbol);
    return code ? code : lend(layout, symbol);
}

std::optional<xcb_keycode_t> XTypist::lend(const KeyLayout& layout, std::uint32_t symbol) {
    giveBack();
    const auto code = layout.unusedKey();
    if (code) {
        map(*code, symbol);
        lent_ = {*code, symbol};
        lentUntil_.start();
    }
    return code;
}

bool XTypist::modifierIsDown() const {
    constexpr int kShift = 0, kControl = 2, kAlt = 3, kSuper = 6; // of the server's eight
    xcb_connection_t* connection = server_.connection();
    const auto keysAsked = xcb_query_keymap(connection);
    const auto mapAsked = xcb_get_modifier_mapping(connection);
    const XReply<xcb_query_keymap_reply_t> keys(
        xcb_query_keymap_reply(connection, keysAsked, nullptr));
    const XReply<xcb_get_modifier_mapping_reply_t> map(
        xcb_get_modifier_mapping_reply(connection, mapAsked, nullptr));
    if (!keys || !map)
        return false;
    const xcb_keycode_t* codes = xcb_get_modifier_mapping_keycodes(map.get());
    const int width = map->keycodes_per_modifier;
    for (const int modifier : {kShift, kControl, kAlt, kSuper})
        for (int i = 0; i < width; ++i) {
            const int code = codes[modifier * width + i];
            if (code != 0 && (keys->keys[code / 8] & (1 << code % 8)))
                return true;
        }
    return false;
}

void XTypist::giveBack() {
    lentUntil_.stop();
    if (const auto lent = std::exchange(lent_, std::nullopt))
        map(lent->code, XKB_KEY_NoSymbol);
}

void XTypist::map(xcb_keycode_t code, std::uint32_t symbol) {
    xcb_change_keyboard_mapping(server_.connection(), 1, code, 1, &symbol);
    server_.flush();
}
