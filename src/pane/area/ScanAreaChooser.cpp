// SPDX-License-Identifier: MIT
#include "src/pane/area/ScanAreaChooser.h"

#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreGraphics/CGDirectDisplay.h"
#include "platform/CoreGraphics/LastUsedWindow.h"
#include "src/controls/BumperController.h"

#include <cmath>
#include <iterator>

namespace {

constexpr UInt32 kMaxDisplays = 20;
constexpr float kPictureWidth = 30; ///< of a display, in points
constexpr float kPictureHeight = 22;

/// A part of a display, in sixths of its width and height. Whole numbers, so that neighbours touch.
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

constexpr int kStep = 10; ///< of a number, in points

/// The sides of an area as numbers, in the stored order.
constexpr struct {
    BumperController* ScanAreaChooser::*bumper;
    float ScanArea::*field;
    CGFloat CGPoint::*start; ///< where a place begins; null for a length
    CGFloat CGSize::*length; ///< the largest value
} kSides[] = {
    {&ScanAreaChooser::scanAreaLeft, &ScanArea::x, &CGPoint::x, &CGSize::width},
    {&ScanAreaChooser::scanAreaTop, &ScanArea::y, &CGPoint::y, &CGSize::height},
    {&ScanAreaChooser::scanAreaWidth, &ScanArea::width, nullptr, &CGSize::width},
    {&ScanAreaChooser::scanAreaHeight, &ScanArea::height, nullptr, &CGSize::height},
};

SInt32 shown(float side) {
    return static_cast<SInt32>(std::lround(side));
}

CGFloat edge(CGFloat start, CGFloat length, int sixths) {
    return start + std::round(length * static_cast<CGFloat>(sixths) / 6);
}

NSRect pictureIn(const Rect& bounds) {
    return {static_cast<float>(bounds.left + bounds.right) / 2 - kPictureWidth / 2,
            static_cast<float>(bounds.top + bounds.bottom) / 2 - kPictureHeight / 2, kPictureWidth,
            kPictureHeight};
}

} // namespace

ScanAreaChooser::~ScanAreaChooser() {
    watchLastUsedWindow({});
}

void ScanAreaChooser::setup() {
    scanAreaGrid->setSource(this);
    watchLastUsedWindow([this] { reloadGrid(); });
    for (const auto& side : kSides)
        (this->*side.bumper)->setDisplay({.text = {}, .take = {}, .apply = [this] {
                                              takeNumbers();
                                          }});
}

void ScanAreaChooser::load() {
    CGDirectDisplayID ids[kMaxDisplays];
    UInt32 count = 0;
    displays_.clear();
    if (CGGetActiveDisplayList(kMaxDisplays, ids, &count) == kCGErrorSuccess)
        for (UInt32 i = 0; i < count; ++i)
            displays_.push_back(CGDisplayBounds(ids[i]));
    CGRect screens;
    for (const CGRect& display : displays_)
        screens = CGRectUnion(screens, display);
    for (std::size_t i = 0; i < std::size(kSides); ++i) {
        const auto& [bumper, field, start, length] = kSides[i];
        const double least = start ? double{screens.origin.*start} : 0.0;
        (this->*bumper)
            ->setKind(kNumberKindSInt32, &numbers_[i], least, least + double{screens.size.*length},
                      kStep, kChangeScanArea)
            ->setFormat(LOCALIZABLE_COUNT("Formats", "%.0f points"));
    }
    update();
}

void ScanAreaChooser::update() {
    for (std::size_t i = 0; i < std::size(kSides); ++i) {
        numbers_[i] = shown(prefs.scanArea.*kSides[i].field);
        (this->*kSides[i].bumper)->update();
    }
    showNumberRows();
    reloadGrid();
}

void ScanAreaChooser::reloadGrid() {
    lastWindow_ = lastUsedWindow();
    scanAreaGrid->reload();
}

/// A drawn area may have fractions of points. Only a number that was changed is taken.
void ScanAreaChooser::takeNumbers() {
    for (std::size_t i = 0; i < std::size(kSides); ++i)
        if (float& side = prefs.scanArea.*kSides[i].field; shown(side) != numbers_[i])
            side = static_cast<float>(numbers_[i]);
    prefs.useScanArea = prefs.scanArea.width > 0 && prefs.scanArea.height > 0;
}

int ScanAreaChooser::partCount() const {
    return static_cast<int>(displays_.size()) * kPartCount;
}

CGRect ScanAreaChooser::areaOf(int index) const {
    if (index >= partCount())
        return *lastWindow_;
    const auto& [origin, size] = displays_[static_cast<std::size_t>(index / kPartCount)];
    const Part& part = kParts[index % kPartCount];
    const CGFloat left = edge(origin.x, size.width, part.left);
    const CGFloat top = edge(origin.y, size.height, part.top);
    return CGRectMake(left, top, edge(origin.x, size.width, part.left + part.width) - left,
                      edge(origin.y, size.height, part.top + part.height) - top);
}

int ScanAreaChooser::choiceCount() const {
    return partCount() + (lastWindow_ ? 1 : 0);
}

std::string ScanAreaChooser::choiceName(int index) const {
    if (index >= partCount())
        return localized("ScanArea", "The window used last");
    const std::string part = localized("ScanArea", kParts[index % kPartCount].name);
    return displays_.size() < 2 ? part
                                : filled(localized("ScanArea", "%1, display %2"),
                                         {part, std::to_string(index / kPartCount + 1)});
}

/// With one display the first picture is no area: it is what is scanned without one.
bool ScanAreaChooser::isWholeScreen(int index) const {
    return index == 0 && displays_.size() == 1;
}

bool ScanAreaChooser::isChosen(int index) const {
    if (isWholeScreen(index))
        return !prefs.useScanArea;
    const auto& [x, y, width, height] = prefs.scanArea;
    const auto [origin, size] = areaOf(index);
    return prefs.useScanArea && origin.x == x && origin.y == y && size.width == width &&
           size.height == height;
}

void ScanAreaChooser::drawChoice(int index, const Rect& bounds) const {
    if (index >= partCount())
        return drawWindow(bounds);
    const Part& part = kParts[index % kPartCount];
    const NSRect screen = pictureIn(bounds);
    constexpr float kUnitX = (kPictureWidth - 2) / 6, kUnitY = (kPictureHeight - 2) / 6;
    NSEraseRect(screen);
    NSColor::keyboardFocusIndicatorColor().set();
    NSRectFill({screen.x + 1 + static_cast<float>(part.left) * kUnitX,
                screen.y + 1 + static_cast<float>(part.top) * kUnitY,
                static_cast<float>(part.width) * kUnitX, static_cast<float>(part.height) * kUnitY});
    NSColor::blackColor().set();
    NSFrameRectWithWidth(screen, 1);
}

/// With a bar for the title.
void ScanAreaChooser::drawWindow(const Rect& bounds) const {
    constexpr float kBar = 6;
    const NSRect window = NSInsetRect(pictureIn(bounds), 3, 0);
    NSColor::keyboardFocusIndicatorColor().set();
    NSRectFill(window);
    NSEraseRect({window.x + 2, window.y + kBar, window.width - 4, window.height - kBar - 2});
    NSColor::blackColor().set();
    NSFrameRectWithWidth(window, 1);
}

void ScanAreaChooser::choose(int index) {
    if (index >= partCount() && !(lastWindow_ = lastUsedWindow()))
        return; // the window is gone
    if (isWholeScreen(index)) {
        prefs.useScanArea = 0;
        return changes_.changed(kChangeScanArea);
    }
    const auto [origin, size] = areaOf(index);
    prefs.scanArea = {origin.x, origin.y, size.width, size.height};
    prefs.useScanArea = 1;
    changes_.changed(kChangeScanArea);
}
