// SPDX-License-Identifier: MIT
// The user's hands, for tests that are no C++: moves the keyboard and the mouse of an Xvfb as told
// on standard input, a line each, and answers each with an empty line once it is done:
//
//   key CODE down|up      the server's key code
//   button NUMBER down|up
//   move RIGHT DOWN       pixels

#include "tests/support/FakeDevice.h"

#include <iostream>
#include <string>

int main() {
    FakeDevice keyboard(FakeDevice::Kind::Keyboard), mouse(FakeDevice::Kind::Mouse);
    std::string what;
    while (std::cin >> what) {
        int first = 0;
        std::string second;
        std::cin >> first >> second;
        if (what == "key")
            keyboard.key(first, second == "down");
        else if (what == "button")
            mouse.button(first, second == "down");
        else if (what == "move")
            mouse.move(first, std::stoi(second));
        else
            return 2;
        std::cout << std::endl;
    }
}
