// SPDX-License-Identifier: MIT
#include "src/pane/look/LineColorChooser.h"

#include "platform/AppKit/NSColorWell.h"
#include "platform/AppKit/NSGraphics.h"
#include "src/controls/NumberController.h"
#include "src/record/linecolors.h"

#include <iterator>

namespace {

constexpr ChangeMask kLook = kChangeScanLineLook | kChangeGuideLineLook;
constexpr int kMargin = 7; ///< points around a sample

NSColor toNSColor(const LineColor& color) {
    return NSColor::colorWithDeviceRed(color.red / 255.0, color.green / 255.0, color.blue / 255.0,
                                       1.0);
}

/// A colour component from 0 to 1 as a whole number from 0 to 255. It is truncated; a little is
/// added first, so that whole numbers stay whole.
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
    return static_cast<int>(std::size(kLineColors));
}

std::string LineColorChooser::choiceName(int index) const {
    return localized("Colour", kLineColors[index].name);
}

bool LineColorChooser::isChosen(int index) const {
    const LineColor& color = kLineColors[index].color;
    return color.red == prefs.lineColor.red && color.green == prefs.lineColor.green &&
           color.blue == prefs.lineColor.blue;
}

void LineColorChooser::drawChoice(int index, const Rect& bounds) const {
    const NSRect sample =
        NSInsetRect({static_cast<float>(bounds.left), static_cast<float>(bounds.top),
                     static_cast<float>(bounds.right - bounds.left),
                     static_cast<float>(bounds.bottom - bounds.top)},
                    kMargin, kMargin);
    toNSColor(kLineColors[index].color).set();
    NSRectFill(sample);
    NSColor::blackColor().set();
    NSFrameRectWithWidth(sample, 1);
}

void LineColorChooser::choose(int index) {
    prefs.lineColor = kLineColors[index].color;
    lineColor->setColor(toNSColor(prefs.lineColor));
    changes_.changed(kLook);
}
