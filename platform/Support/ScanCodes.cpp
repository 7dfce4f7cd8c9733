// SPDX-License-Identifier: MIT
#include "platform/Support/ScanCodes.h"

#include <array>
#include <linux/input-event-codes.h>

namespace {

/// X11's and Wayland's codes are the kernel's plus this.
constexpr std::uint32_t kScanCodeOffset = 8;

struct KeyRow {
    std::uint8_t key; ///< of the kernel's input events
    std::uint8_t virtualKey;
};

/// The kernel's codes are those of linux/input-event-codes.h. Virtual key codes are the kVK_… of
/// HIToolbox/Events.h. Both identify a key by its place on an ANSI, ISO or JIS keyboard. Extra keys
/// of PCs have the codes that macOS gives them.
constexpr KeyRow kRows[] = {
    // The letters, as on a US keyboard
    {KEY_A, 0x00},
    {KEY_B, 0x0B},
    {KEY_C, 0x08},
    {KEY_D, 0x02},
    {KEY_E, 0x0E},
    {KEY_F, 0x03},
    {KEY_G, 0x05},
    {KEY_H, 0x04},
    {KEY_I, 0x22},
    {KEY_J, 0x26},
    {KEY_K, 0x28},
    {KEY_L, 0x25},
    {KEY_M, 0x2E},
    {KEY_N, 0x2D},
    {KEY_O, 0x1F},
    {KEY_P, 0x23},
    {KEY_Q, 0x0C},
    {KEY_R, 0x0F},
    {KEY_S, 0x01},
    {KEY_T, 0x11},
    {KEY_U, 0x20},
    {KEY_V, 0x09},
    {KEY_W, 0x0D},
    {KEY_X, 0x07},
    {KEY_Y, 0x10},
    {KEY_Z, 0x06},

    // The digits and what stands among the letters
    {KEY_1, 0x12},
    {KEY_2, 0x13},
    {KEY_3, 0x14},
    {KEY_4, 0x15},
    {KEY_5, 0x17},
    {KEY_6, 0x16},
    {KEY_7, 0x1A},
    {KEY_8, 0x1C},
    {KEY_9, 0x19},
    {KEY_0, 0x1D},
    {KEY_MINUS, 0x1B},
    {KEY_EQUAL, 0x18},
    {KEY_LEFTBRACE, 0x21},
    {KEY_RIGHTBRACE, 0x1E},
    {KEY_BACKSLASH, 0x2A},
    {KEY_SEMICOLON, 0x29},
    {KEY_APOSTROPHE, 0x27},
    {KEY_COMMA, 0x2B},
    {KEY_DOT, 0x2F},
    {KEY_SLASH, 0x2C},
    {KEY_GRAVE, 0x32},
    {KEY_102ND, 0x0A}, // the ISO key
    {KEY_SPACE, 0x31},
    {KEY_TAB, 0x30},
    {KEY_ENTER, 0x24},
    {KEY_BACKSPACE, 0x33},
    {KEY_ESC, 0x35},
    {KEY_COMPOSE, 0x6E}, // the PC's menu key

    // Modifiers
    {KEY_RIGHTMETA, 0x36},
    {KEY_LEFTMETA, 0x37},
    {KEY_LEFTSHIFT, 0x38},
    {KEY_CAPSLOCK, 0x39},
    {KEY_LEFTALT, 0x3A},
    {KEY_LEFTCTRL, 0x3B},
    {KEY_RIGHTSHIFT, 0x3C},
    {KEY_RIGHTALT, 0x3D},
    {KEY_RIGHTCTRL, 0x3E},

    // The keypad
    {KEY_KP0, 0x52},
    {KEY_KP1, 0x53},
    {KEY_KP2, 0x54},
    {KEY_KP3, 0x55},
    {KEY_KP4, 0x56},
    {KEY_KP5, 0x57},
    {KEY_KP6, 0x58},
    {KEY_KP7, 0x59},
    {KEY_KP8, 0x5B},
    {KEY_KP9, 0x5C},
    {KEY_KPDOT, 0x41},
    {KEY_KPASTERISK, 0x43},
    {KEY_KPPLUS, 0x45},
    {KEY_NUMLOCK, 0x47},
    {KEY_KPSLASH, 0x4B},
    {KEY_KPENTER, 0x4C},
    {KEY_KPMINUS, 0x4E},
    {KEY_KPEQUAL, 0x51},
    {KEY_KPCOMMA, 0x5F},

    // Function keys
    {KEY_F1, 0x7A},
    {KEY_F2, 0x78},
    {KEY_F3, 0x63},
    {KEY_F4, 0x76},
    {KEY_F5, 0x60},
    {KEY_F6, 0x61},
    {KEY_F7, 0x62},
    {KEY_F8, 0x64},
    {KEY_F9, 0x65},
    {KEY_F10, 0x6D},
    {KEY_F11, 0x67},
    {KEY_F12, 0x6F},
    {KEY_F13, 0x69},
    {KEY_SYSRQ, 0x69},
    {KEY_F14, 0x6B},
    {KEY_SCROLLLOCK, 0x6B},
    {KEY_F15, 0x71},
    {KEY_PAUSE, 0x71},
    {KEY_F16, 0x6A},
    {KEY_F17, 0x40},
    {KEY_F18, 0x4F},
    {KEY_F19, 0x50},
    {KEY_F20, 0x5A},

    // Moving about, and sound
    {KEY_HELP, 0x72},
    {KEY_INSERT, 0x72},
    {KEY_HOME, 0x73},
    {KEY_PAGEUP, 0x74},
    {KEY_DELETE, 0x75},
    {KEY_END, 0x77},
    {KEY_PAGEDOWN, 0x79},
    {KEY_LEFT, 0x7B},
    {KEY_RIGHT, 0x7C},
    {KEY_DOWN, 0x7D},
    {KEY_UP, 0x7E},
    {KEY_VOLUMEUP, 0x48},
    {KEY_VOLUMEDOWN, 0x49},
    {KEY_MUTE, 0x4A},

    // Japanese and Korean keyboards
    {KEY_YEN, 0x5D},
    {KEY_RO, 0x5E},
    {KEY_HANJA, 0x66},
    {KEY_HANGEUL, 0x68},
};

/// Indexed by the kernel's code.
constexpr auto kVirtualKeys = [] {
    std::array<std::uint16_t, 256> keys{};
    keys.fill(kNoKeyCode);
    for (const KeyRow& row : kRows)
        keys[row.key] = row.virtualKey;
    return keys;
}();

} // namespace

std::uint16_t virtualKeyCode(std::uint32_t scanCode) {
    const std::uint32_t key = scanCode - kScanCodeOffset; // far out of the table for codes below it
    return key < kVirtualKeys.size() ? kVirtualKeys[key] : kNoKeyCode;
}

std::vector<std::uint32_t> scanCodes(std::uint16_t virtualKey) {
    std::vector<std::uint32_t> codes;
    for (const KeyRow& row : kRows)
        if (row.virtualKey == virtualKey)
            codes.push_back(row.key + kScanCodeOffset);
    return codes;
}
