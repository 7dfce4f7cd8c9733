#include "platform/AppKit/NSImage.h"

#include <QIcon>

NSImage::NSImage(const QIcon& icon)
    : icon_(icon.isNull() ? nullptr : std::make_shared<const QIcon>(icon)) {}
