// SPDX-License-Identifier: MIT
#include "agent/wayland/SymbolKeymap.h"

#include <algorithm>
#include <sys/mman.h>
#include <unistd.h>
#include <xkbcommon/xkbcommon.h>

namespace {

constexpr std::uint32_t kXOffset = 8; ///< X numbers the kernel's keys from here

/// The real modifiers of what is typed with others.
constexpr std::pair<const char*, const char*> kModifiers[] = {
    {"Shift_L", "Shift"}, {"Control_L", "Control"}, {"Alt_L", "Mod1"}, {"Super_L", "Mod4"}};

} // namespace

void SymbolKeymap::Free::operator()(xkb_keymap* keymap) const {
    xkb_keymap_unref(keymap);
}

void SymbolKeymap::Free::operator()(xkb_state* state) const {
    xkb_state_unref(state);
}

SymbolKeymap::SymbolKeymap() = default;
SymbolKeymap::~SymbolKeymap() = default;

std::optional<std::uint8_t> SymbolKeymap::find(const std::string& symbol) const {
    const auto found = std::ranges::find(symbols_, symbol);
    if (found == symbols_.end())
        return std::nullopt;
    return static_cast<std::uint8_t>(found - symbols_.begin() + 1);
}

std::optional<std::uint8_t> SymbolKeymap::add(const std::string& symbol) {
    if (symbols_.size() == kMostKeys ||
        xkb_keysym_from_name(symbol.c_str(), XKB_KEYSYM_NO_FLAGS) == XKB_KEY_NoSymbol)
        return std::nullopt;
    symbols_.push_back(symbol);
    xkb_context* const context = xkb_context_new(XKB_CONTEXT_NO_FLAGS);
    keymap_.reset(xkb_keymap_new_from_string(context, text().c_str(), XKB_KEYMAP_FORMAT_TEXT_V1,
                                             XKB_KEYMAP_COMPILE_NO_FLAGS));
    xkb_context_unref(context);
    state_.reset(keymap_ ? xkb_state_new(keymap_.get()) : nullptr);
    return keymap_ ? find(symbol) : std::nullopt;
}

std::string SymbolKeymap::text() const {
    std::string codes, keys, modifiers;
    for (std::size_t i = 0; i < symbols_.size(); ++i) {
        const std::string key = "<K" + std::to_string(i + 1) + ">";
        codes += key + " = " + std::to_string(i + 1 + kXOffset) + ";\n";
        keys += "key " + key + " { [ " + symbols_[i] + " ] };\n";
        for (const auto& [symbol, modifier] : kModifiers)
            if (symbols_[i] == symbol)
                modifiers += std::string("modifier_map ") + modifier + " { " + key + " };\n";
    }
    return "xkb_keymap {\nxkb_keycodes \"korvex\" { minimum = 8; maximum = 255;\n" + codes +
           "};\nxkb_types \"korvex\" { include \"complete\" };\n"
           "xkb_compatibility \"korvex\" { include \"complete\" };\n"
           "xkb_symbols \"korvex\" {\n" +
           keys + modifiers + "};\n};\n";
}

/// With the zero at its end, as compositors expect it.
std::pair<int, std::uint32_t> SymbolKeymap::share() const {
    const std::string keymap = text();
    const std::size_t size = keymap.size() + 1;
    const int file = memfd_create("korvex-keymap", MFD_CLOEXEC);
    if (file >= 0 && write(file, keymap.c_str(), size) != static_cast<ssize_t>(size)) {
        close(file);
        return {-1, 0};
    }
    return {file, static_cast<std::uint32_t>(size)};
}

std::uint32_t SymbolKeymap::modifiersAfter(std::uint8_t code, bool isDown) {
    if (!state_)
        return 0;
    xkb_state_update_key(state_.get(), code + kXOffset, isDown ? XKB_KEY_DOWN : XKB_KEY_UP);
    return xkb_state_serialize_mods(state_.get(), XKB_STATE_MODS_DEPRESSED);
}
