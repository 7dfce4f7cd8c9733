// SPDX-License-Identifier: MIT
#pragma once

#include <gmock/gmock.h>

/// A test with a Qt application of that class.
template <class Application>
class ApplicationTest : public testing::Test {
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    Application application_{argc_, argv_};
};
