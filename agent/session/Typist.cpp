// SPDX-License-Identifier: MIT
#include "agent/session/Typist.h"

#include "platform/CoreFoundation/Localization.h"

namespace {

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

std::string Typist::type(const std::string& keys) {
    const auto symbols = symbolsOf(keys);
    const auto codes = keysNamed(symbols);
    for (std::size_t i = 0; i < codes.size(); ++i)
        if (!codes[i])
            return filled(localized("Agent", "The keyboard has no key for %1."), {symbols[i]});
    for (const auto code : codes)
        hand_.keyDown(*code);
    for (auto code = codes.rbegin(); code != codes.rend(); ++code)
        hand_.keyUp(**code);
    return {};
}

std::optional<std::uint8_t> Typist::keyNamed(const std::string& symbol) {
    return keysNamed({symbol}).front();
}
