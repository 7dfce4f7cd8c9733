// SPDX-License-Identifier: MIT
#include "agent/x11/KeyMap.h"

#include "platform/HIToolbox/CarbonEvents.h"

#include <algorithm>
#include <span>
#include <utility>

namespace {

// Of X11's keysymdef.h, which is Xlib's.
constexpr xcb_keysym_t kLevel3Shift = 0xFE03;
constexpr xcb_keysym_t kModeSwitch = 0xFF7E;
constexpr xcb_keysym_t kNumLock = 0xFF7F;
constexpr xcb_keysym_t kAltLeft = 0xFFE9;
constexpr xcb_keysym_t kAltRight = 0xFFEA;
constexpr xcb_keysym_t kSuperLeft = 0xFFEB;
constexpr xcb_keysym_t kSuperRight = 0xFFEC;

constexpr int kFirstFree = 3; ///< Shift, Lock and Control are where they are
constexpr int kModifiers = 8;

class Symbols {
public:
    explicit Symbols(XServer& server) {
        const xcb_setup_t* setup = xcb_get_setup(server.connection());
        first_ = setup->min_keycode;
        const auto count = static_cast<std::uint8_t>(setup->max_keycode - first_ + 1);
        reply_.reset(xcb_get_keyboard_mapping_reply(
            server.connection(), xcb_get_keyboard_mapping(server.connection(), first_, count),
            nullptr));
    }

    /// Of all levels and layouts. Empty for a code that no key can have.
    std::span<const xcb_keysym_t> of(int code) const {
        if (!reply_ || code < first_)
            return {};
        const std::span all(
            xcb_get_keyboard_mapping_keysyms(reply_.get()),
            static_cast<std::size_t>(xcb_get_keyboard_mapping_keysyms_length(reply_.get())));
        const std::size_t width = reply_->keysyms_per_keycode;
        const std::size_t begin = static_cast<std::size_t>(code - first_) * width;
        return begin + width <= all.size() ? all.subspan(begin, width) : all.subspan(0, 0);
    }

    bool has(int code, std::initializer_list<xcb_keysym_t> wanted) const {
        return std::ranges::any_of(of(code), [wanted](xcb_keysym_t symbol) {
            return std::ranges::find(wanted, symbol) != wanted.end();
        });
    }

private:
    xcb_keycode_t first_;
    XReply<xcb_get_keyboard_mapping_reply_t> reply_;
};

/// The first modifier with a key of these symbols.
std::uint32_t bitOf(const xcb_get_modifier_mapping_reply_t* reply, const Symbols& symbols,
                    std::initializer_list<xcb_keysym_t> wanted, std::uint32_t otherwise) {
    if (!reply)
        return otherwise;
    const int width = reply->keycodes_per_modifier;
    const xcb_keycode_t* codes = xcb_get_modifier_mapping_keycodes(reply);
    for (int modifier = kFirstFree; modifier < kModifiers; ++modifier)
        for (int i = 0; i < width; ++i)
            if (symbols.has(codes[modifier * width + i], wanted))
                return 1U << modifier;
    return otherwise;
}

/// From the end, where the keys that only few keyboards have lie.
std::optional<xcb_keycode_t> findUnused(const Symbols& symbols) {
    for (int code = 0xFF; code > 0; --code) {
        const auto all = symbols.of(code);
        if (!all.empty() && std::ranges::all_of(all, [](xcb_keysym_t one) { return one == 0; }))
            return static_cast<xcb_keycode_t>(code);
    }
    return std::nullopt;
}

} // namespace

void KeyMap::read(XServer& server) {
    xcb_connection_t* connection = server.connection();
    const auto cookie = xcb_get_modifier_mapping(connection);
    const Symbols symbols(server);
    const XReply<xcb_get_modifier_mapping_reply_t> reply(
        xcb_get_modifier_mapping_reply(connection, cookie, nullptr));
    super_ = bitOf(reply.get(), symbols, {kSuperLeft, kSuperRight}, XCB_MOD_MASK_4);
    alt_ = bitOf(reply.get(), symbols, {kAltLeft, kAltRight}, XCB_MOD_MASK_1);
    altGr_ = bitOf(reply.get(), symbols, {kLevel3Shift, kModeSwitch}, alt_);
    numLock_ = bitOf(reply.get(), symbols, {kNumLock}, 0);
    unusedKey_ = findUnused(symbols);
}

std::vector<std::uint32_t> KeyMap::modifiers(std::uint32_t carbon) const {
    std::vector<std::uint32_t> choices;
    for (const std::uint32_t option : {alt_, altGr_}) {
        const std::pair<std::uint32_t, std::uint32_t> kBits[] = {
            {cmdKey, super_},
            {shiftKey, XCB_MOD_MASK_SHIFT},
            {optionKey, option},
            {controlKey, XCB_MOD_MASK_CONTROL}};
        std::uint32_t bits = 0;
        for (const auto& [ours, servers] : kBits)
            if (carbon & ours)
                bits |= servers;
        if (choices.empty() || choices.front() != bits)
            choices.push_back(bits);
    }
    return choices;
}

std::uint32_t KeyMap::allModifiers() const {
    return super_ | alt_ | altGr_ | XCB_MOD_MASK_SHIFT | XCB_MOD_MASK_CONTROL;
}

std::vector<std::uint32_t> KeyMap::locks() const {
    std::vector<std::uint32_t> locks = {0, XCB_MOD_MASK_LOCK};
    if (numLock_ != 0)
        locks.insert(locks.end(), {numLock_, numLock_ | XCB_MOD_MASK_LOCK});
    return locks;
}
