#include "platform/AppKit/NSObject.h"

#include <map>

namespace {

// Never destroyed: classes are looked up by programs that are already on their way out.
std::map<std::string_view, NSClassEntry>& registry() {
    static auto& classes = *new std::map<std::string_view, NSClassEntry>;
    return classes;
}

} // namespace

SEL NSObject::selector(std::string_view name) const {
    for (const NSAction& action : actions()) {
        if (action.name == name)
            return &action;
    }
    return nullptr;
}

NSClassRegistration::NSClassRegistration(NSClassEntry entry) {
    registry().emplace(entry.name, entry);
}

const NSClassEntry* NSClassFromString(std::string_view name) {
    const auto found = registry().find(name);
    return found == registry().end() ? nullptr : &found->second;
}
