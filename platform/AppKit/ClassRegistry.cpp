// SPDX-License-Identifier: MIT
#include "platform/AppKit/ClassRegistry.h"

#include <map>

namespace {

// Never destroyed: classes are looked up even while a program exits.
std::map<std::string_view, RegisteredClass>& registry() {
    static auto& classes = *new std::map<std::string_view, RegisteredClass>;
    return classes;
}

} // namespace

ClassRegistration::ClassRegistration(RegisteredClass entry) {
    registry().emplace(entry.name, entry);
}

const RegisteredClass* NSClassFromString(std::string_view name) {
    const auto found = registry().find(name);
    return found == registry().end() ? nullptr : &found->second;
}
