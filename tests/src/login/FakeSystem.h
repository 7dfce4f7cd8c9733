#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <optional>
#include <vector>

// What a test wants the system to be like. FakeSystem.cpp stands in for the platform's files
// Gestalt.cpp and Authorization.cpp and for two functions of the C library.
struct FakeSystem {
    std::optional<SInt32> version = 0x1070; ///< none: it can't be had
    bool makesAuthorizations = true;
    bool grantsRight = true;
    bool knowsUser = true;
    std::optional<std::vector<unsigned>> groups; ///< of the user; none: they can't be read

    // What was asked of it.
    int versionsAsked = 0;
    int rightsAsked = 0;
    int authorizations = 0; ///< made and not freed yet
};

extern FakeSystem fakeSystem;
