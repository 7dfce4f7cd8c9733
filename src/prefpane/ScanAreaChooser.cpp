// SPDX-License-Identifier: MIT
#include "src/prefpane/ScanAreaChooser.h"

#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreGraphics/CGDirectDisplay.h"
#include "src/prefpane/NumberController.h"

#include <cmath>
#include <iterator>

namespace {

constexpr UInt32 kMaxDisplays = 20;
constexpr float kPictureWidth = 30; ///< of a display, in points
constexpr float kPictureHeight = 22;

/// A part of a display, in sixths of its width and height: whole numbers, so that neighbours touch.
struct Part {
    const char* name;
    int left, top, width, height;
};

constexpr Part kParts[] = {
    {LOCALIZABLE("ScanArea", "Whole screen"), 0, 0, 6, 6},
    {LOCALIZABLE("ScanArea", "Left half"), 0, 0, 3, 6},
    {LOCALIZABLE("ScanArea", "Right half"), 3, 0, 3, 6},
    {LOCALIZABLE("ScanArea", "Top half"), 0, 0, 6, 3},
    {LOCALIZABLE("ScanArea", "Bottom half"), 0, 3, 6, 3},
    {LOCALIZABLE("ScanArea", "Left third"), 0, 0, 2, 6},
    {LOCALIZABLE("ScanArea", "Middle third"), 2, 0, 2, 6},
    {LOCALIZABLE("ScanArea", "Right third"), 4, 0, 2, 6},
    {LOCALIZABLE("ScanArea", "Top left quarter"), 0, 0, 3, 3},
    {LOCALIZABLE("ScanArea", "Top right quarter"), 3, 0, 3, 3},
    {LOCALIZABLE("ScanArea", "Bottom left quarter"), 0, 3, 3, 3},
    {LOCALIZABLE("ScanArea", "Bottom right quarter"), 3, 3, 3, 3},
};

constexpr int kPartCount = std::size(kParts);

CGFloat edge(CGFloat start, CGFloat length, int sixths) {
    return start + std::round(length * static_cast<CGFloat>(sixths) / 6);
}

} // namespace

void ScanAreaChooser::load() {
    CGDirectDisplayID ids[kMaxDisplays];
    UInt32 count = 0;
    displays_.clear();
    if (CGGetActiveDisplayList(kMaxDisplays, ids, &count) == kCGErrorSuccess)
        for (UInt32 i = 0; i < count; ++i)
            displays_.push_back(CGDisplayBounds(ids[i]));
    scanAreaGrid->reload();
}

CGRect ScanAreaChooser::areaOf(int index) const {
    const auto& [origin, size] = displays_[static_cast<std::size_t>(index / kPartCount)];
    const Part& part = kParts[index % kPartCount];
    const CGFloat left = edge(origin.x, size.width, part.left);
    const CGFloat top = edge(origin.y, size.height, part.top);
    return CGRectMake(left, top, edge(origin.x, size.width, part.left + part.width) - left,
                      edge(origin.y, size.height, part.top + part.height) - top);
}

int ScanAreaChooser::choiceCount() const {
    return static_cast<int>(displays_.size()) * kPartCount;
}

std::string ScanAreaChooser::choiceName(int index) const {
    const std::string part = localized("ScanArea", kParts[index % kPartCount].name);
    return displays_.size() < 2 ? part
                                : filled(localized("ScanArea", "%1, display %2"),
                                         {part, std::to_string(index / kPartCount + 1)});
}

bool ScanAreaChooser::isChosen(int index) const {
    const auto& [x, y, width, height] = prefs.scanArea;
    const auto [origin, size] = areaOf(index);
    return prefs.useScanArea && origin.x == x && origin.y == y && size.width == width &&
           size.height == height;
}

void ScanAreaChooser::drawChoice(int index, const Rect& bounds) const {
    const Part& part = kParts[index % kPartCount];
    const NSRect screen = {static_cast<float>(bounds.left + bounds.right) / 2 - kPictureWidth / 2,
                           static_cast<float>(bounds.top + bounds.bottom) / 2 - kPictureHeight / 2,
                           kPictureWidth, kPictureHeight};
    constexpr float kUnitX = (kPictureWidth - 2) / 6, kUnitY = (kPictureHeight - 2) / 6;
    NSEraseRect(screen);
    NSColor::keyboardFocusIndicatorColor().set();
    NSRectFill({screen.x + 1 + static_cast<float>(part.left) * kUnitX,
                screen.y + 1 + static_cast<float>(part.top) * kUnitY,
                static_cast<float>(part.width) * kUnitX, static_cast<float>(part.height) * kUnitY});
    NSColor::blackColor().set();
    NSFrameRectWithWidth(screen, 1);
}

void ScanAreaChooser::choose(int index) {
    const auto [origin, size] = areaOf(index);
    prefs.scanArea = {origin.x, origin.y, size.width, size.height};
    prefs.useScanArea = 1;
    changes_.changed(kChangeScanArea);
}
