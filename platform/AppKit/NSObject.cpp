// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSObject.h"

SEL NSObject::selector(std::string_view name) const {
    for (const Action& action : actions()) {
        if (action.name == name)
            return &action;
    }
    return nullptr;
}
