// SPDX-License-Identifier: MIT
#include "platform/CoreGraphics/CGDirectDisplay.h"

#include "platform/CoreGraphics/detail/DisplayPlaces.h"

#include <QGuiApplication>
#include <QScreen>

#include <algorithm>

namespace {

/// The main display first.
QList<QScreen*> displays() {
    QList<QScreen*> screens = QGuiApplication::screens();
    const auto main = std::find(screens.begin(), screens.end(), QGuiApplication::primaryScreen());
    if (main != screens.end())
        std::rotate(screens.begin(), main, main + 1);
    return screens;
}

} // namespace

// Displays are numbered from 1.
CGDirectDisplayID CGMainDisplayID() {
    return 1;
}

CGError CGGetActiveDisplayList(UInt32 maxDisplays, CGDirectDisplayID* list, UInt32* count) {
    const auto active = static_cast<UInt32>(displays().size());
    if (active == 0)
        return kCGErrorNoneAvailable;
    *count = std::min(active, maxDisplays);
    for (UInt32 i = 0; i < *count; ++i)
        list[i] = i + 1;
    return kCGErrorSuccess;
}

CGRect CGDisplayBounds(CGDirectDisplayID display) {
    const QList<QScreen*> active = displays();
    if (display < 1 || display > static_cast<UInt32>(active.size()))
        return {};
    const QRectF points =
        toPoints(DisplayPlace(*active[static_cast<int>(display) - 1]), DisplayPlace(*active[0]));
    return CGRectMake(static_cast<CGFloat>(points.x()), static_cast<CGFloat>(points.y()),
                      static_cast<CGFloat>(points.width()), static_cast<CGFloat>(points.height()));
}
