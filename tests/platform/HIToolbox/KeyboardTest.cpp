#include "platform/HIToolbox/FunctionKeys.h"
#include "platform/HIToolbox/KeyCodes.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <linux/input-event-codes.h>
#include <map>
#include <string>

namespace {

constexpr int kNoKey = KEY_RESERVED;

/// The kernel's key of each virtual key code, the way back.
constexpr int kKeys[128] = {
    // clang-format off
    KEY_A, KEY_S, KEY_D, KEY_F, KEY_H, KEY_G, KEY_Z, KEY_X,
    KEY_C, KEY_V, KEY_102ND, KEY_B, KEY_Q, KEY_W, KEY_E, KEY_R,
    KEY_Y, KEY_T, KEY_1, KEY_2, KEY_3, KEY_4, KEY_6, KEY_5,
    KEY_EQUAL, KEY_9, KEY_7, KEY_MINUS, KEY_8, KEY_0, KEY_RIGHTBRACE, KEY_O,
    KEY_U, KEY_LEFTBRACE, KEY_I, KEY_P, KEY_ENTER, KEY_L, KEY_J, KEY_APOSTROPHE,
    KEY_K, KEY_SEMICOLON, KEY_BACKSLASH, KEY_COMMA, KEY_SLASH, KEY_N, KEY_M, KEY_DOT,
    KEY_TAB, KEY_SPACE, KEY_GRAVE, KEY_BACKSPACE, kNoKey, KEY_ESC, KEY_RIGHTMETA, KEY_LEFTMETA,
    KEY_LEFTSHIFT, KEY_CAPSLOCK, KEY_LEFTALT, KEY_LEFTCTRL, KEY_RIGHTSHIFT, KEY_RIGHTALT, KEY_RIGHTCTRL, kNoKey,
    KEY_F17, KEY_KPDOT, kNoKey, KEY_KPASTERISK, kNoKey, KEY_KPPLUS, kNoKey, KEY_NUMLOCK,
    KEY_VOLUMEUP, KEY_VOLUMEDOWN, KEY_MUTE, KEY_KPSLASH, KEY_KPENTER, kNoKey, KEY_KPMINUS, KEY_F18,
    KEY_F19, KEY_KPEQUAL, KEY_KP0, KEY_KP1, KEY_KP2, KEY_KP3, KEY_KP4, KEY_KP5,
    KEY_KP6, KEY_KP7, KEY_F20, KEY_KP8, KEY_KP9, KEY_YEN, KEY_RO, KEY_KPCOMMA,
    KEY_F5, KEY_F6, KEY_F7, KEY_F3, KEY_F8, KEY_F9, KEY_HANJA, KEY_F11,
    KEY_HANGEUL, KEY_F13, KEY_F16, KEY_F14, kNoKey, KEY_F10, KEY_COMPOSE, KEY_F12,
    kNoKey, KEY_F15, KEY_HELP, KEY_HOME, KEY_PAGEUP, KEY_DELETE, KEY_F4, KEY_END,
    KEY_F2, KEY_PAGEDOWN, KEY_F1, KEY_LEFT, KEY_RIGHT, KEY_DOWN, KEY_UP, kNoKey,
    // clang-format on
};

TEST(KeyboardTest, EveryKeyHasItsCodeAndNoOtherHasOne) {
    std::map<int, UInt16> codes = {// of keys that only PCs have
                                   {KEY_INSERT, 0x72},
                                   {KEY_SYSRQ, 0x69},
                                   {KEY_SCROLLLOCK, 0x6B},
                                   {KEY_PAUSE, 0x71}};
    for (UInt16 code = 0; code < std::size(kKeys); ++code)
        codes.emplace(kKeys[code], code);
    codes[kNoKey] = kNoKeyCode;
    for (int key = -8; key < 500; ++key)
        EXPECT_EQ(virtualKeyCode(static_cast<UInt32>(key + 8)),
                  codes.contains(key) ? codes[key] : kNoKeyCode)
            << key;
    EXPECT_EQ(virtualKeyCode(~0u), kNoKeyCode);
}

TEST(KeyboardTest, ReadsWhatTheKernelDoesWithFunctionKeys) {
    const std::string path = std::string(std::getenv("KORVEX_TEST_SANDBOX")) + "/fnmode";
    EXPECT_FALSE(kernelPrefersFunctionKeys(path.c_str())) << "there is no file";
    for (const char* text : {"2\n", "1\n", "3\n", "", "two"}) {
        std::ofstream(path) << text;
        EXPECT_EQ(kernelPrefersFunctionKeys(path.c_str()), *text == '2') << text;
    }
}

} // namespace
