// SPDX-License-Identifier: MIT
#include "agent/wayland/SymbolKeymap.h"

#include <gtest/gtest.h>

#include <unistd.h>
#include <xkbcommon/xkbcommon.h>

namespace {

/// As a program reads it that gets the file.
xkb_keymap* keymapIn(const SymbolKeymap& keys, xkb_context* context) {
    const auto [file, size] = keys.share();
    std::string text(size, '\0');
    EXPECT_EQ(pread(file, text.data(), size, 0), static_cast<ssize_t>(size));
    close(file);
    return xkb_keymap_new_from_string(context, text.c_str(), XKB_KEYMAP_FORMAT_TEXT_V1,
                                      XKB_KEYMAP_COMPILE_NO_FLAGS);
}

TEST(SymbolKeymap, ProgramsGetTheSymbolsAndModifiers) {
    SymbolKeymap keys;
    for (const char* symbol : {"Control_L", "v", "Greek_alpha", "Alt_L", "Return", "eacute"})
        EXPECT_TRUE(keys.add(symbol)) << symbol;
    EXPECT_FALSE(keys.add("no such symbol"));
    EXPECT_EQ(keys.find("v"), 2);
    EXPECT_FALSE(keys.find("w"));

    xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    xkb_keymap* const keymap = keymapIn(keys, context);
    ASSERT_TRUE(keymap);
    xkb_state* const state = xkb_state_new(keymap);
    for (const char* symbol : {"v", "Greek_alpha", "Return", "eacute"})
        EXPECT_EQ(xkb_state_key_get_one_sym(state, *keys.find(symbol) + 8U),
                  xkb_keysym_from_name(symbol, XKB_KEYSYM_NO_FLAGS))
            << symbol;
    const auto bit = [&](const char* name) { return 1U << xkb_keymap_mod_get_index(keymap, name); };
    EXPECT_EQ(keys.modifiersAfter(1, true), bit("Control"));
    EXPECT_EQ(keys.modifiersAfter(2, true), bit("Control"));
    EXPECT_EQ(keys.modifiersAfter(4, true), bit("Control") | bit("Mod1"));
    EXPECT_EQ(keys.modifiersAfter(1, false), bit("Mod1"));
    EXPECT_EQ(keys.modifiersAfter(4, false), 0U);
    xkb_state_unref(state);
    xkb_keymap_unref(keymap);
    xkb_context_unref(context);
}

} // namespace
