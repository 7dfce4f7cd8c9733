// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/Outlets.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The root of the classes that an interface file can make and wire. Such a class lists its outlets
/// in one table, its actions in another, and registers its name (ClassRegistry.h).
class NSObject {
public:
    NSObject() = default;
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;
    virtual ~NSObject() = default;

    virtual std::span<const Outlet> outlets() const { return {}; }

    virtual std::span<const Action> actions() const { return {}; }

    /// How the interface file differs from what the code expects, in words. Asked when all outlets
    /// are filled.
    virtual std::vector<std::string> layoutFaults() const { return {}; }

    /// Called once, when the whole interface file is loaded and wired.
    virtual void awakeFromNib() {}

    /// The action of that name, or null.
    SEL selector(std::string_view name) const;
};
