// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSImage.h"

#include "platform/IconServices/detail/IconImages.h"

#include <QIcon>
#include <QPixmap>

namespace {

/// The sizes in which controls show an icon, in pixels: for the usual text size, and for double
/// density or double text size.
constexpr int kSides[] = {16, 32};

} // namespace

NSImage::NSImage(const QIcon& icon)
    : icon_(icon.isNull() ? nullptr : std::make_shared<const QIcon>(icon)) {}

NSImage NSImage::imageWithIconRef(IconRef icon) {
    QIcon sizes;
    if (icon)
        for (const int side : kSides)
            if (const QImage image = icon->images().atLeast(side); !image.isNull())
                sizes.addPixmap(QPixmap::fromImage(image));
    return NSImage(sizes);
}
