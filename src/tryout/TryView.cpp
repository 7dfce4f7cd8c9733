// SPDX-License-Identifier: MIT
#include "src/tryout/TryView.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/HIToolbox/EventTimers.h"
#include "src/store/prefs.h"
#include "src/tryout/words.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

REGISTER_CLASS(TryView);

namespace {

using Phase = tryout::Session::Phase;

constexpr double kDrawingTime = 0.04; ///< s, at most, from a due frame to its drawing
constexpr float kMarkWidth = 2;       ///< of the lines around the mark
constexpr double kMarkTint = 0.2;     ///< opacity inside
constexpr float kPlaceSize = 10;      ///< of the squares that show where the line was stopped
constexpr double kShownTargets = 3;   ///< the least height of the picture of places, in targets
constexpr float kLabelHeight = 24, kLabelMargin = 10;
constexpr float kHoldPartHeight = 20; ///< of the parts that are filled while a press is held
constexpr float kHoldHeight = kHoldPartHeight + kLabelHeight;

NSColor scanLineColor() {
    return NSColor::colorWithDeviceRed(prefs.lineColor.red / 255.0, prefs.lineColor.green / 255.0,
                                       prefs.lineColor.blue / 255.0,
                                       (100 - prefs.lineTransparency) / 100);
}

NSColor markColor(double opacity) {
    const NSColor color = NSColor::keyboardFocusIndicatorColor();
    return NSColor::colorWithDeviceRed(color.redComponent(), color.greenComponent(),
                                       color.blueComponent(), opacity);
}

void drawBand(const NSRect& band) {
    markColor(kMarkTint).set();
    NSRectFillUsingOperation(band, NSCompositeSourceOver);
    markColor(1).set();
    NSFrameRectWithWidth(band, kMarkWidth);
}

void drawLabel(const std::string& text, const NSRect& rect) {
    NSDrawString(createFromUTF8(text).get(), rect, {NSFont::systemFontOfSize(0)});
}

bool isWithModifier(const NSEvent& event) {
    return (event.modifierFlags() & (NSControlKeyMask | NSAlternateKeyMask | NSCommandKeyMask)) !=
           0;
}

/// The greatest distance of a place from its mark, in millimetres.
double farthest(const tryout::Measured& measured) {
    double most = 0;
    for (const tryout::Trial& trial : measured.trials)
        most = std::max(most, std::abs(trial.miss));
    return most;
}

} // namespace

void TryView::setSession(const tryout::Session* session, double scale) {
    session_ = session;
    scale_ = static_cast<float>(scale);
    setNeedsDisplay(true);
}

void TryView::setSaying(const std::string& saying) {
    if (saying == saying_)
        return;
    saying_ = saying;
    NSAccessibilityPostNotification(this, NSAccessibilityAnnouncementRequestedNotification, saying);
    NSAccessibilityPostNotification(this, NSAccessibilityValueChangedNotification);
}

bool TryView::showsLine() const {
    return session_->phase() == Phase::Sweeping || session_->phase() == Phase::Stopped;
}

NSRect TryView::bandAround(double position) const {
    const auto height = static_cast<float>(session_->target()) * scale_;
    return {0, static_cast<float>(position) * scale_ - height / 2, bounds().width, height};
}

NSRect TryView::lineAt(double moment) const {
    const auto thickness = static_cast<float>(prefs.lineThickness);
    const auto middle = static_cast<float>(session_->linePosition(moment)) * scale_;
    return {0, middle - thickness / 2, bounds().width, thickness};
}

// Where the line will be when this is drawn isn't known yet. But the farthest place is.
void TryView::showFrame() {
    const double now = GetCurrentEventTime();
    showHold(session_->heldToLeave(now));
    if (!showsLine())
        return;
    const NSRect next = lineAt(now), last = lineAt(now + kDrawingTime);
    setNeedsDisplayInRect(NSInsetRect(shown_, 0, -1));
    setNeedsDisplayInRect({0, next.y - 1, next.width, last.y - next.y + next.height + 2});
}

NSRect TryView::holdBar() const {
    const NSRect whole = bounds();
    return {kLabelMargin, whole.height - kHoldHeight - kLabelMargin, whole.width - 2 * kLabelMargin,
            kHoldHeight};
}

/// It changes once a second: nothing flashes, and nothing moves but the line.
void TryView::showHold(int seconds) {
    if (seconds == shownHold_)
        return;
    shownHold_ = seconds;
    setNeedsDisplayInRect(holdBar());
    if (seconds == 1 || seconds == tryout::kHoldToLeave)
        NSAccessibilityPostNotification(this, NSAccessibilityAnnouncementRequestedNotification,
                                        tryout::holdText(seconds > 1));
}

void TryView::drawRect(const NSRect&) {
    NSEraseRect(bounds());
    if (session_->phase() == Phase::Done)
        drawPlaces();
    else
        drawMark();
    markColor(1).set();
    drawFrame();
    if (shownHold_ > 0)
        drawHold();
    if (showsLine()) {
        shown_ = lineAt(GetCurrentEventTime());
        scanLineColor().set();
        NSRectFillUsingOperation(shown_, NSCompositeSourceOver);
    }
}

/// A part for each second, filled when that is over, and under them what to do.
void TryView::drawHold() const {
    NSRect bar = holdBar();
    NSEraseRect(bar);
    const float step = bar.width / tryout::kHoldToLeave;
    for (int i = 0; i < tryout::kHoldToLeave; ++i) {
        const NSRect part = {bar.x + step * static_cast<float>(i), bar.y, step, kHoldPartHeight};
        if (i < shownHold_)
            NSRectFill(NSInsetRect(part, kMarkWidth, 0));
        else
            NSFrameRectWithWidth(NSInsetRect(part, kMarkWidth, 0), kMarkWidth);
    }
    drawLabel(tryout::holdText(shownHold_ == tryout::kHoldToLeave),
              {bar.x + kMarkWidth, bar.y + kHoldPartHeight, bar.width, kLabelHeight});
}

void TryView::drawMark() const {
    const NSRect band = bandAround(session_->mark());
    drawBand(band);
    const float middle = band.y + band.height / 2;
    NSRectFill({0, middle - kMarkWidth / 2, band.height, kMarkWidth});
    NSRectFill({band.width - band.height, middle - kMarkWidth / 2, band.height, kMarkWidth});
}

/// Each press, first to last: early ones above, late ones below the target.
void TryView::drawPlaces() const {
    const auto& trials = session_->measured().trials;
    const NSRect whole = bounds();
    const double range =
        std::max(kShownTargets * session_->target(), 2.2 * farthest(session_->measured()));
    const auto points = whole.height / static_cast<float>(range);
    const float middle = whole.height / 2;
    const auto height = static_cast<float>(session_->target()) * points;
    drawBand({0, middle - height / 2, whole.width, height});
    const float step = whole.width / static_cast<float>(trials.size() + 1);
    float x = 0;
    for (const tryout::Trial& trial : trials) {
        x += step;
        if (trial.pressed)
            NSRectFill({x - kPlaceSize / 2,
                        middle + static_cast<float>(trial.miss) * points - kPlaceSize / 2,
                        kPlaceSize, kPlaceSize});
    }
    NSRect label = {kLabelMargin, kLabelMargin, whole.width - 2 * kLabelMargin, kLabelHeight};
    drawLabel(localized("Try", "Early"), label);
    label.y = whole.height - kLabelMargin - kLabelHeight;
    drawLabel(localized("Try", "Late"), label);
}

// A scan key may have modifiers.
bool TryView::performKeyEquivalent(NSEvent* event) {
    const bool isOurs = session_->phase() != Phase::Done && isWithModifier(*event) &&
                        event->charactersIgnoringModifiers() != NSEscapeCharacter;
    if (isOurs && !event->isARepeat())
        target_->pressed(event->timestamp());
    return isOurs;
}

std::string TryView::accessibilityTitle() const {
    return localized("Try", "The line");
}

std::string TryView::accessibilityValue() const {
    if (session_->phase() == Phase::Done)
        return saying_;
    char text[200];
    std::snprintf(text, sizeof text, localized("Try", "The mark is %.1f mm from the top.").c_str(),
                  session_->mark());
    return joined(Joint::Sentences, {saying_, localizedNumbers(text)});
}
