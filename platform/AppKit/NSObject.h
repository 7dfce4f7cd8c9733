// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AppKit/Outlets.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

/// The root of the classes that an interface file can make and wire. Such a class lists its outlets
/// and actions in one table each, and its name in the registry below.
class NSObject {
public:
    NSObject() = default;
    NSObject(const NSObject&) = delete;
    NSObject& operator=(const NSObject&) = delete;
    virtual ~NSObject() = default;

    virtual std::span<const Outlet> outlets() const { return {}; }

    virtual std::span<const Action> actions() const { return {}; }

    /// What the interface file lays out otherwise than the code expects, in words; asked when all
    /// outlets are filled.
    virtual std::vector<std::string> layoutFaults() const { return {}; }

    /// Called once, when the whole interface file has been loaded and wired.
    virtual void awakeFromNib() {}

    /// The action of that name, or null.
    SEL selector(std::string_view name) const;
};
