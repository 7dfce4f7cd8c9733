// SPDX-License-Identifier: MIT
#include "src/prefpane/LineColorChooser.h"

#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/CoreFoundation/Localization.h"
#include "src/prefpane/NumberController.h"

#include <iterator>

namespace {

constexpr ChangeMask kLook = kChangeScanLineLook | kChangeGuideLineLook;
constexpr int kMargin = 7; ///< points around a sample

struct NamedColor {
    const char* name;
    LineColor color;
};

/// The twelve of strongest contrast with one another, from Kenneth Kelly's list of 1965.
constexpr NamedColor kColors[] = {
    {LOCALIZABLE("Colour", "White"), {255, 255, 255}},
    {LOCALIZABLE("Colour", "Black"), {0, 0, 0}},
    {LOCALIZABLE("Colour", "Yellow"), {255, 179, 0}},
    {LOCALIZABLE("Colour", "Purple"), {128, 62, 117}},
    {LOCALIZABLE("Colour", "Orange"), {255, 104, 0}},
    {LOCALIZABLE("Colour", "Light blue"), {166, 189, 215}},
    {LOCALIZABLE("Colour", "Red"), {193, 0, 32}},
    {LOCALIZABLE("Colour", "Buff"), {206, 162, 98}},
    {LOCALIZABLE("Colour", "Grey"), {129, 112, 102}},
    {LOCALIZABLE("Colour", "Green"), {0, 125, 52}},
    {LOCALIZABLE("Colour", "Pink"), {246, 118, 142}},
    {LOCALIZABLE("Colour", "Blue"), {0, 83, 138}},
};

NSColor toNSColor(const LineColor& color) {
    return NSColor::colorWithDeviceRed(color.red / 255.0, color.green / 255.0, color.blue / 255.0,
                                       1.0);
}

/// A colour component from 0 to 1 as a whole number from 0 to 255: truncated, with just enough
/// added to keep whole numbers whole.
UInt16 byteComponent(double component) {
    return static_cast<UInt16>(component * 255.0 + 0.1);
}

} // namespace

void LineColorChooser::load() {
    lineColor->setColor(toNSColor(prefs.lineColor));
    lineColorGrid->reload();
}

void LineColorChooser::changedLineColor() {
    const NSColor color = lineColor->color();
    prefs.lineColor = {byteComponent(color.redComponent()), byteComponent(color.greenComponent()),
                       byteComponent(color.blueComponent())};
    lineColorGrid->reload();
    changes_.changed(kLook);
}

int LineColorChooser::choiceCount() const {
    return static_cast<int>(std::size(kColors));
}

std::string LineColorChooser::choiceName(int index) const {
    return localized("Colour", kColors[index].name);
}

bool LineColorChooser::isChosen(int index) const {
    const LineColor& color = kColors[index].color;
    return color.red == prefs.lineColor.red && color.green == prefs.lineColor.green &&
           color.blue == prefs.lineColor.blue;
}

void LineColorChooser::drawChoice(int index, const Rect& bounds) const {
    const NSRect sample =
        NSInsetRect({static_cast<float>(bounds.left), static_cast<float>(bounds.top),
                     static_cast<float>(bounds.right - bounds.left),
                     static_cast<float>(bounds.bottom - bounds.top)},
                    kMargin, kMargin);
    toNSColor(kColors[index].color).set();
    NSRectFill(sample);
    NSColor::blackColor().set();
    NSFrameRectWithWidth(sample, 1);
}

void LineColorChooser::choose(int index) {
    prefs.lineColor = kColors[index].color;
    lineColor->setColor(toNSColor(prefs.lineColor));
    changes_.changed(kLook);
}
