// SPDX-License-Identifier: MIT
#include "agent/x11/Typist.h"

#include "agent/x11/KeyLayout.h"
#include "platform/CoreFoundation/Localization.h"

#include <cmath>
#include <utility>
#include <vector>
#include <xkbcommon/xkbcommon.h>

namespace {

constexpr int kMillisecondsASecond = 1000;

/// The keys' names, from "Shift+Control+v". Modifiers are those on the left.
std::vector<std::string> symbolsOf(const std::string& keys) {
    std::vector<std::string> names;
    std::size_t begin = 0;
    for (std::size_t end; (end = keys.find('+', begin)) != std::string::npos; begin = end + 1)
        names.push_back(keys.substr(begin, end - begin) + "_L");
    names.push_back(keys.substr(begin));
    return names;
}

} // namespace

Typist::Typist(XServer& server, Hand& hand) : server_(server), hand_(hand) {
    lentUntil_.setSingleShot(true);
    lentUntil_.setInterval(static_cast<int>(std::lround(kLentFor * kMillisecondsASecond)));
    QObject::connect(&lentUntil_, &QTimer::timeout, [this] { giveBack(); });
}

Typist::~Typist() {
    giveBack();
}

std::string Typist::type(const std::string& keys) {
    const auto layout = KeyLayout::read();
    std::vector<xcb_keycode_t> codes;
    for (const std::string& name : symbolsOf(keys)) {
        const auto code = layout ? keyIn(*layout, name) : std::nullopt;
        if (!code)
            return filled(localized("Agent", "The keyboard has no key for %1."), {name});
        codes.push_back(*code);
    }
    for (const xcb_keycode_t code : codes)
        hand_.keyDown(code);
    for (auto code = codes.rbegin(); code != codes.rend(); ++code)
        hand_.keyUp(*code);
    return {};
}

std::optional<xcb_keycode_t> Typist::keyNamed(const std::string& symbol) {
    const auto layout = KeyLayout::read();
    return layout ? keyIn(*layout, symbol) : std::nullopt;
}

std::optional<xcb_keycode_t> Typist::keyIn(const KeyLayout& layout, const std::string& name) {
    const std::uint32_t symbol = xkb_keysym_from_name(name.c_str(), XKB_KEYSYM_NO_FLAGS);
    if (lent_ && lent_->symbol == symbol) {
        lentUntil_.start();
        return lent_->code;
    }
    const auto code = layout.keyFor(symbol);
    return code ? code : lend(layout, symbol);
}

std::optional<xcb_keycode_t> Typist::lend(const KeyLayout& layout, std::uint32_t symbol) {
    giveBack();
    const auto code = layout.unusedKey();
    if (code) {
        map(*code, symbol);
        lent_ = {*code, symbol};
        lentUntil_.start();
    }
    return code;
}

bool Typist::modifierIsDown() const {
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

void Typist::giveBack() {
    lentUntil_.stop();
    if (const auto lent = std::exchange(lent_, std::nullopt))
        map(lent->code, XKB_KEY_NoSymbol);
}

void Typist::map(xcb_keycode_t code, std::uint32_t symbol) {
    xcb_change_keyboard_mapping(server_.connection(), 1, code, 1, &symbol);
    server_.flush();
}
