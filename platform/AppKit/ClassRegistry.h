// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/NSObject.h"

/// A class that an interface file or an Info.plist names.
struct RegisteredClass {
    std::string_view name;
    NSObject* (*make)(); ///< the caller owns the result
};

/// Adds a class to the registry that NSClassFromString searches; a static object of this type
/// beside the class's code does it when that code is loaded.
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
