// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSObject.h"

/// A class that interface files or Info.plist can name.
struct RegisteredClass {
    std::string_view name;
    NSObject* (*make)(); ///< the caller owns the result
};

/// Registers a class for NSClassFromString. A static object of this type stands beside the class's
/// code, so loading the code registers the class.
class ClassRegistration {
public:
    explicit ClassRegistration(RegisteredClass entry);
};

/// The class of that name, or null.
const RegisteredClass* NSClassFromString(std::string_view name);

#define REGISTER_CLASS(Class)                                                                      \
    static const ClassRegistration registration##Class {                                           \
        {                                                                                          \
#Class, []() -> NSObject* { return new Class; }                                        \
        }                                                                                          \
    }
