// SPDX-License-Identifier: MIT
#include "agent/Terminals.h"

#include "platform/CoreFoundation/Localization.h"

#include <algorithm>
#include <iterator>

namespace {

/// A kind of terminal: keys for Copy and Paste. Null: it has none.
struct Kind {
    const char* copy;
    const char* paste;
};

constexpr Kind kUsual = {"Shift+Control+c", "Shift+Control+v"};
constexpr Kind kXTerm = {nullptr, "Shift+Insert"};
constexpr Kind kRxvt = {"Control+Alt+c", "Control+Alt+v"};

/// By the names that Debian's terminals give their windows.
constexpr struct {
    const char* program;
    const Kind& kind;
} kTerminals[] = {
    {"Alacritty", kUsual},
    {"Gnome-terminal", kUsual},
    {"Guake", kUsual},
    {"Lxterminal", kUsual},
    {"Mate-terminal", kUsual},
    {"Roxterm", kUsual},
    {"Sakura", kUsual},
    {"St", kUsual},
    {"Terminator", kUsual},
    {"Tilda", kUsual},
    {"Tilix", kUsual},
    {"UXTerm", kXTerm},
    {"URxvt", kRxvt},
    {"XTerm", kXTerm},
    {"Xfce4-terminal", kUsual},
    {"cool-retro-term", kUsual},
    {"kitty", kUsual},
    {"konsole", kUsual},
    {"org.gnome.Console", kUsual},
    {"qterminal", kUsual},
    {"st-256color", kUsual},
    {"yakuake", kUsual},
};

} // namespace

Shortcut shortcutIn(const std::string& program, const std::string& keys) {
    const auto terminal = std::find_if(std::begin(kTerminals), std::end(kTerminals),
                                       [&](const auto& row) { return row.program == program; });
    if (terminal == std::end(kTerminals))
        return {keys, {}};
    const auto [copy, paste] = terminal->kind;
    if (keys == "Control+x")
        return {{}, localized("Agent", "A terminal can't cut. Choose Copy.")};
    if (keys == "Control+z")
        return {{}, localized("Agent", "A terminal can't undo.")};
    if (keys == "Control+c" && !copy)
        return {{}, localized("Agent", "This terminal can't copy for other programs.")};
    if (keys == "Control+c")
        return {copy, {}};
    if (keys == "Control+v")
        return {paste, {}};
    return {keys, {}};
}
