// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFBase.h"

#include <memory>
#include <string>

struct xkb_state;

/// What stands on the keys, with the keyboard layout that is active when this is made. macOS has
/// UCKeyTranslate for it. Only X11 servers tell; anywhere else no key has a label.
class KeyboardLayout {
public:
    KeyboardLayout();

    bool isKnown() const { return state_ != nullptr; }

    /// What the key with this virtual key code types alone, in capitals, or its digit if it has
    /// one; UTF-8. Empty for a key that types nothing visible.
    std::string label(UInt16 virtualKey) const;

private:
    std::shared_ptr<xkb_state> state_; ///< null where nobody tells
};
