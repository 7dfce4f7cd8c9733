// SPDX-License-Identifier: MIT
#include "agent/x11/KeyLayout.h"

#include <xkbcommon/xkbcommon-x11.h>

namespace {

struct Unref {
    void operator()(xkb_context* context) const { xkb_context_unref(context); }

    void operator()(xkb_state* state) const { xkb_state_unref(state); }

    void operator()(xcb_connection_t* connection) const { xcb_disconnect(connection); }
};

template <class T>
using Owned = std::unique_ptr<T, Unref>;

} // namespace

void KeyLayout::Free::operator()(xkb_keymap* keymap) const {
    xkb_keymap_unref(keymap);
}

std::optional<KeyLayout> KeyLayout::read() {
    const Owned<xcb_connection_t> server(xcb_connect(nullptr, nullptr));
    if (xcb_connection_has_error(server.get()) ||
        !xkb_x11_setup_xkb_extension(
            server.get(), XKB_X11_MIN_MAJOR_XKB_VERSION, XKB_X11_MIN_MINOR_XKB_VERSION,
            XKB_X11_SETUP_XKB_EXTENSION_NO_FLAGS, nullptr, nullptr, nullptr, nullptr))
        return std::nullopt;
    const Owned<xkb_context> context(xkb_context_new(XKB_CONTEXT_NO_DEFAULT_INCLUDES));
    const auto device = xkb_x11_get_core_keyboard_device_id(server.get());
    KeyLayout layout;
    layout.keymap_.reset(xkb_x11_keymap_new_from_device(context.get(), server.get(), device,
                                                        XKB_KEYMAP_COMPILE_NO_FLAGS));
    if (!layout.keymap_)
        return std::nullopt;
    const Owned<xkb_state> state(
        xkb_x11_state_new_from_device(layout.keymap_.get(), server.get(), device));
    if (!state)
        return std::nullopt;
    layout.active_ = xkb_state_serialize_layout(state.get(), XKB_STATE_LAYOUT_EFFECTIVE);
    return layout;
}

std::optional<xcb_keycode_t> KeyLayout::keyIn(std::uint32_t layout, std::uint32_t symbol) const {
    const auto last = xkb_keymap_max_keycode(keymap_.get());
    for (auto code = xkb_keymap_min_keycode(keymap_.get()); code <= last; ++code) {
        // A key that is the same in all layouts has one only.
        const auto layouts = xkb_keymap_num_layouts_for_key(keymap_.get(), code);
        if (layouts == 0)
            continue;
        const xkb_keysym_t* symbols = nullptr;
        const int count = xkb_keymap_key_get_syms_by_level(
            keymap_.get(), code, layout < layouts ? layout : 0, 0, &symbols);
        if (count == 1 && symbols[0] == symbol)
            return static_cast<xcb_keycode_t>(code);
    }
    return std::nullopt;
}

std::optional<xcb_keycode_t> KeyLayout::keyFor(std::uint32_t symbol) const {
    if (const auto code = keyIn(active_, symbol))
        return code;
    for (std::uint32_t layout = 0; layout < xkb_keymap_num_layouts(keymap_.get()); ++layout)
        if (const auto code = keyIn(layout, symbol))
            return code;
    return std::nullopt;
}

std::optional<xcb_keycode_t> KeyLayout::unusedKey() const {
    const auto first = xkb_keymap_min_keycode(keymap_.get());
    for (auto code = xkb_keymap_max_keycode(keymap_.get()); code >= first; --code)
        if (xkb_keymap_num_layouts_for_key(keymap_.get(), code) == 0)
            return static_cast<xcb_keycode_t>(code);
    return std::nullopt;
}
