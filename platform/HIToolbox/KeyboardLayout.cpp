// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/KeyboardLayout.h"

#include "platform/Support/ScanCodes.h"

#include <QGuiApplication>

#include <string_view>
#include <xkbcommon/xkbcommon-x11.h>

namespace {

std::shared_ptr<xkb_state> activeLayout() {
    const auto* x11 =
        qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    xcb_connection_t* display = x11 ? x11->connection() : nullptr;
    if (!display) // Qt's offscreen platform has the interface, but no connection
        return nullptr;
    const int keyboard = xkb_x11_get_core_keyboard_device_id(display);
    const std::shared_ptr<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_FLAGS),
                                               xkb_context_unref);
    if (keyboard < 0 || !context)
        return nullptr;
    const std::shared_ptr<xkb_keymap> keymap(
        xkb_x11_keymap_new_from_device(context.get(), display, keyboard,
                                       XKB_KEYMAP_COMPILE_NO_FLAGS),
        xkb_keymap_unref);
    if (!keymap)
        return nullptr;
    return {xkb_x11_state_new_from_device(keymap.get(), display, keyboard), xkb_state_unref};
}

/// Of keys that put an accent on the next letter, from XKB_KEY_dead_grave on.
constexpr std::u32string_view kAccents = U"`´^~¯˘˙¨°˝ˇ¸˛";

UInt32 characterOf(xkb_keysym_t symbol) {
    const xkb_keysym_t accent = symbol - XKB_KEY_dead_grave; // far out for smaller ones
    return accent < kAccents.size() ? kAccents[accent]
                                    : xkb_keysym_to_utf32(xkb_keysym_to_upper(symbol));
}

/// What the key types at a level: 0 alone, 1 with Shift. 0 for nothing.
UInt32 typed(xkb_state* state, xkb_keycode_t key, xkb_level_index_t level) {
    const xkb_keysym_t* symbols = nullptr;
    const int count = xkb_keymap_key_get_syms_by_level(
        xkb_state_get_keymap(state), key, xkb_state_key_get_layout(state, key), level, &symbols);
    return count == 1 ? characterOf(symbols[0]) : 0;
}

bool isDigit(UInt32 character) {
    return character >= '0' && character <= '9';
}

} // namespace

KeyboardLayout::KeyboardLayout() : state_(activeLayout()) {}

std::string KeyboardLayout::label(UInt16 virtualKey) const {
    const auto keys = scanCodes(virtualKey);
    if (!state_ || keys.empty())
        return {};
    const xkb_keycode_t key = keys.front(); // of two keys for one code, Apple's is the first
    const UInt32 alone = typed(state_.get(), key, 0), withShift = typed(state_.get(), key, 1);
    const char32_t shown = isDigit(withShift) ? withShift : alone; // a French 1 is over the &
    return shown > ' ' ? QString::fromUcs4(&shown, 1).toStdString() : "";
}
