// SPDX-License-Identifier: MIT
#pragma once

#include "platform/IconServices/Icons.h"

#include <memory>

class QIcon;

/// A picture in one or more sizes. Copies share it.
class NSImage {
public:
    /// No picture.
    NSImage() = default;

    /// The icon in the sizes that controls show. No picture for null.
    static NSImage imageWithIconRef(IconRef icon);

    /// For the layer's own use.
    explicit NSImage(const QIcon& icon);

    /// Null when there is no picture.
    const QIcon* icon() const { return icon_.get(); }

private:
    std::shared_ptr<const QIcon> icon_;
};
