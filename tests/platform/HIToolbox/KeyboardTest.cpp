// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KernelKeyboard.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <string>

namespace {

TEST(KeyboardTest, ReadsWhatTheKernelDoesWithFunctionKeys) {
    const std::string path = std::string(std::getenv("KORVEX_TEST_SANDBOX")) + "/fnmode";
    EXPECT_TRUE(kernelPrefersFunctionKeys(path.c_str())) << "there is no such keyboard";
    for (const char* text : {"2\n", "1\n", "3\n", "", "two"}) {
        std::ofstream(path) << text;
        EXPECT_EQ(kernelPrefersFunctionKeys(path.c_str()), *text == '2') << text;
    }
}

} // namespace
