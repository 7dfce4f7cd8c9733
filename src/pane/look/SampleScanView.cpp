// SPDX-License-Identifier: MIT
#include "src/pane/look/SampleScanView.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/Appearance.h"
#include "src/files/ptrutil.h"
#include "src/link/Daemon.h"
#include "src/record/numbertext.h"
#include "src/scan/palutil.h"
#include "src/store/prefs.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>

REGISTER_CLASS(SampleScanView);

namespace {

/// The actions of the sample's two buttons. They are the same for any palette.
constexpr UInt8 kFirstAction = 20;
constexpr UInt8 kSecondAction = 21;

constexpr SInt16 kColorDepth = 32; ///< bits
constexpr float kLabelMargin = 2;  ///< points
constexpr float kFrameWidth = 1;
constexpr float kFocusedFrameWidth = 3; ///< doesn't reach the label

/// How one line looks.
struct LineLook {
    const char* label;
    double transparency; ///< percent
};

LineLook lookOf(SInt32 lineType) {
    if (lineType == kSampleScanLine)
        return {LOCALIZABLE("Preview", "Scan Line"), prefs.lineTransparency};
    return {LOCALIZABLE("Preview", "Guide Line"), prefs.lineGhostTransparency};
}

NSColor lineColor(double transparency) {
    return NSColor::colorWithDeviceRed(prefs.lineColor.red / 255.0, prefs.lineColor.green / 255.0,
                                       prefs.lineColor.blue / 255.0,
                                       (100.0 - transparency) / 100.0);
}

/// Coordinates may exceed 16 bits: settings from a file aren't limited.
using Wide = std::int64_t;

SInt16 toCoordinate(Wide value) {
    using Limits = std::numeric_limits<SInt16>;
    return static_cast<SInt16>(std::clamp<Wide>(value, Limits::min(), Limits::max()));
}

Rect rectOf(Wide top, Wide left, Wide height, Wide width) {
    return {toCoordinate(top), toCoordinate(left), toCoordinate(top + height),
            toCoordinate(left + width)};
}

/// The sample palette's place in a view with these bounds: at the left edge, centred vertically.
Rect paletteFrame(const NSRect& bounds) {
    const Wide border = prefs.borderGap, gap = prefs.buttonGap;
    const Wide height = prefs.buttonSize.height + 2 * border + 2;
    const Wide width = 2 * (border + gap + prefs.buttonSize.width + 1);
    const auto middle = static_cast<Wide>(bounds.y + bounds.height * 0.5F);
    return rectOf(middle - height / 2, static_cast<Wide>(bounds.x), height, width);
}

void drawSampleButtons(const Rect& frame) {
    const Wide border = prefs.borderGap, gap = prefs.buttonGap;
    Rect button = rectOf(frame.top + border + 1, frame.left + border + gap, prefs.buttonSize.height,
                         prefs.buttonSize.width);
    palutilDrawBtn(kFirstAction, 0, button);
    OffsetRect(&button, toCoordinate(gap + prefs.buttonSize.width), 0);
    palutilDrawBtn(kSecondAction, 0, button);
}

} // namespace

void SampleScanView::setSampleLineType(SInt32 type) {
    lineSampleType_ = type;
    NSAccessibilityPostNotification(this, NSAccessibilityTitleChangedNotification);
}

void SampleScanView::showOtherLine() {
    setSampleLineType(static_cast<SInt32>(1U - static_cast<UInt32>(lineSampleType_)));
    setNeedsDisplay(true);
}

void SampleScanView::mouseDown(NSEvent*) {
    showOtherLine();
}

void SampleScanView::keyDown(NSEvent* event) {
    switch (event->charactersIgnoringModifiers()) {
    case u' ':
    case NSCarriageReturnCharacter:
    case NSEnterCharacter:
        if (!event->isARepeat()) // a key that is held down clicks once
            showOtherLine();
        return;
    default:
        event->passOn();
    }
}

void SampleScanView::drawRect(const NSRect&) {
    NSColor::lightGrayColor().set();
    NSRectFill(bounds());
    drawScanLine();
    drawPalette();
    drawPointer();
    NSColor::blackColor().set();
    NSFrameRectWithWidth(bounds(), isFirstResponder() ? kFocusedFrameWidth : kFrameWidth);
}

void SampleScanView::drawScanLine() {
    const auto [label, transparency] = lookOf(lineSampleType_);
    const NSRect whole = bounds();
    const auto thickness = static_cast<float>(prefs.lineThickness);
    const float top = whole.y + whole.height * 0.5F - static_cast<float>(prefs.lineThickness / 2);

    NSGraphicsContext* context = NSGraphicsContext::currentContext();
    const bool antialiases = context->shouldAntialias();
    context->setShouldAntialias(false);
    lineColor(transparency).set();
    NSRectFillUsingOperation({whole.x + 1, top, whole.width - 2, thickness}, NSCompositeSourceOver);
    context->setShouldAntialias(antialiases);

    const auto text = createFromUTF8(localized("Preview", label));
    const TextAttributes attributes{NSFont::systemFontOfSize(NSFont::smallSystemFontSize())};
    const NSSize size = sizeWithAttributes(text.get(), attributes);
    drawAtPoint(text.get(), {whole.x + whole.width - size.width - kLabelMargin, top + thickness},
                attributes);
}

void SampleScanView::drawPalette() {
    GrafPtr before;
    GetPort(&before);
    SetPort(qdPort());
    const Rect frame = paletteFrame(bounds());
    SetThemeBackground(kThemeBrushUtilityWindowBackgroundActive, kColorDepth, true);
    EraseRect(&frame);
    const RgnHandle clip = NewRgn();
    GetClip(clip);
    ClipRect(&frame);
    drawSampleButtons(frame);
    SetClip(clip);
    PenNormal();
    FrameRect(&frame);
    SetPort(before);
}

void SampleScanView::drawPointer() {
    PointerImage pointer;
    if (!ptrutilLoadPointerFromBundle(daemonMainBundle(), prefs.pointerImageName, &pointer))
        return;
    const NSRect whole = bounds();
    const auto context = NSGraphicsContext::currentContext()->graphicsPort();
    CGContextSaveGState(context.get());
    CGContextTranslateCTM(context.get(), 0, whole.height);
    CGContextScaleCTM(context.get(), 1, -1);
    const auto width = static_cast<CGFloat>(CGImageGetWidth(pointer.image.get()));
    const auto height = static_cast<CGFloat>(CGImageGetHeight(pointer.image.get()));
    const CGFloat left = std::trunc(whole.x + whole.width * 0.5F - pointer.hotSpot.x);
    const CGFloat bottom = std::trunc(whole.y + whole.height * 0.5F - height + pointer.hotSpot.y);
    CGContextDrawImage(context.get(), CGRectMake(left, bottom, width, height), pointer.image.get());
    CGContextRestoreGState(context.get());
    ptrutilDisposePointer(&pointer);
}

std::string SampleScanView::accessibilityTitle() const {
    return lineSampleType_ == kSampleScanLine ? localized("Preview", "Preview of the scan line")
                                              : localized("Preview", "Preview of the guide line");
}

std::string SampleScanView::accessibilityValue() const {
    const auto& [red, green, blue] = prefs.lineColor;
    return filled(
        localized("Preview",
                  "%1 thick, %2 transparent, red %3, green %4, blue %5, each "
                  "of 255.",
                  "as in 2 points thick, 50% transparent"),
        {numberText(LOCALIZABLE_COUNT("Formats", "%.0f points"), prefs.lineThickness),
         numberWords(LOCALIZABLE("Formats", "%3.0f%%"), lookOf(lineSampleType_).transparency),
         std::to_string(red), std::to_string(green), std::to_string(blue)});
}

void SampleScanView::accessibilityPerformPress() {
    showOtherLine();
}
