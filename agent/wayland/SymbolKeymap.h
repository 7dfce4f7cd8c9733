// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

struct xkb_keymap;
struct xkb_state;

/// A keyboard that has a key for each symbol that was asked for, whatever the user's layout is.
/// Keys are numbered from 1, as the kernel does.
class SymbolKeymap {
public:
    SymbolKeymap();
    ~SymbolKeymap();
    SymbolKeymap(const SymbolKeymap&) = delete;
    SymbolKeymap& operator=(const SymbolKeymap&) = delete;

    std::optional<std::uint8_t> find(const std::string& symbol) const;

    /// The new key of one that isn't there yet. Nothing may be held meanwhile. None when X has no
    /// such symbol, or all keys are taken.
    std::optional<std::uint8_t> add(const std::string& symbol);

    /// The keymap as a file, whose reader closes it, and its size in bytes. -1 when there is no
    /// memory.
    std::pair<int, std::uint32_t> share() const;

    /// The modifiers that are down once that key is, as bits of this keymap.
    std::uint32_t modifiersAfter(std::uint8_t code, bool isDown);

    static constexpr std::size_t kMostKeys = 240;

private:
    struct Free {
        void operator()(xkb_keymap* keymap) const;
        void operator()(xkb_state* state) const;
    };

    std::string text() const;

    std::vector<std::string> symbols_;
    std::unique_ptr<xkb_keymap, Free> keymap_;
    std::unique_ptr<xkb_state, Free> state_;
};
