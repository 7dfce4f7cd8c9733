// SPDX-License-Identifier: MIT
#include "src/tryout/HistoryView.h"

#include "platform/AppKit/ClassRegistry.h"
#include "platform/AppKit/NSColor.h"
#include "platform/AppKit/NSEvent.h"
#include "platform/AppKit/NSGraphics.h"
#include "platform/AppKit/NSStringDrawing.h"
#include "src/tryout/words.h"

#include <algorithm>
#include <cmath>

REGISTER_CLASS(HistoryView);

namespace {

constexpr float kChartShare = 0.35F; ///< of the width
constexpr float kMargin = 12;
constexpr float kLabelHeight = 22;
constexpr float kRowHeight = 24;
constexpr float kPointSize = 7;
constexpr float kLineWidth = 2;
constexpr double kLeastTop = 0.05; ///< s: smaller spreads don't fill the chart
constexpr int kMostPoints = 40;    ///< that the chart shows

void drawText(const std::string& text, const NSRect& place) {
    NSDrawString(createFromUTF8(text).get(), place, {NSFont::systemFontOfSize(0)});
}

/// A line between two points, in steps of a point.
void drawLine(NSPoint from, NSPoint to) {
    const float length = std::max(std::abs(to.x - from.x), std::abs(to.y - from.y));
    const int steps = std::max(static_cast<int>(std::ceil(length)), 1);
    for (int step = 0; step <= steps; ++step) {
        const float share = static_cast<float>(step) / static_cast<float>(steps);
        NSRectFill({from.x + (to.x - from.x) * share - kLineWidth / 2,
                    from.y + (to.y - from.y) * share - kLineWidth / 2, kLineWidth, kLineWidth});
    }
}

} // namespace

void HistoryView::setTries(std::vector<tryout::PastTry> tries) {
    tries_ = std::move(tries);
    current_ = std::max(accessibilityCount() - 1, 0);
    setNeedsDisplay(true);
}

void HistoryView::drawRect(const NSRect&) {
    NSEraseRect(bounds());
    NSColor::keyboardFocusIndicatorColor().set();
    NSFrameRectWithWidth(bounds(), isFirstResponder() ? 3.F : 1.F);
    drawChart();
    drawTable();
}

void HistoryView::drawChart() const {
    const NSRect whole = bounds();
    const float width = whole.width * kChartShare - 2 * kMargin;
    const std::size_t count = std::min<std::size_t>(tries_.size(), kMostPoints);
    const std::span<const tryout::PastTry> shown(tries_.end() - static_cast<std::ptrdiff_t>(count),
                                                 tries_.end());
    double top = kLeastTop;
    for (const tryout::PastTry& past : shown)
        top = std::max(top, past.spread);
    drawText(tryout::chartText(top), {kMargin, 2, width, kLabelHeight});
    const float bottom = whole.height - kMargin, height = bottom - kLabelHeight - kMargin;
    const float step = count > 1 ? width / static_cast<float>(count - 1) : 0;
    NSPoint former = {};
    for (std::size_t i = 0; i < count; ++i) {
        const NSPoint point = {kMargin + step * static_cast<float>(i),
                               bottom - height * static_cast<float>(shown[i].spread / top)};
        if (i > 0)
            drawLine(former, point);
        NSRectFill({point.x - kPointSize / 2, point.y - kPointSize / 2, kPointSize, kPointSize});
        former = point;
    }
}

void HistoryView::drawTable() const {
    for (int i = firstRow(); i < accessibilityCount(); ++i) {
        const NSRect row = rowFrame(i);
        if (isFirstResponder() && i == current_)
            NSFrameRectWithWidth(row, 1);
        drawText(tryout::pastTryRow(tries_[static_cast<std::size_t>(i)]), NSInsetRect(row, 4, 0));
    }
}

/// The last ones are shown, or those around the one with the keyboard's cursor.
int HistoryView::firstRow() const {
    const int room = std::max(static_cast<int>((bounds().height - kMargin) / kRowHeight), 1);
    return std::clamp(accessibilityCount() - room, 0, current_);
}

NSRect HistoryView::rowFrame(int index) const {
    const NSRect whole = bounds();
    const float left = whole.width * kChartShare;
    return {left, kMargin / 2 + kRowHeight * static_cast<float>(index - firstRow()),
            whole.width - left - kMargin, kRowHeight};
}

NSAccessibilityElement HistoryView::accessibilityElement(int index) const {
    return {tryout::pastTryText(tries_[static_cast<std::size_t>(index)]), rowFrame(index),
            index == current_};
}

void HistoryView::accessibilityPress(int index) {
    choose(index);
}

void HistoryView::choose(int index) {
    if (index < 0 || index >= accessibilityCount())
        return;
    current_ = index;
    setNeedsDisplay(true);
    NSAccessibilityPostNotification(this, index,
                                    NSAccessibilityFocusedUIElementChangedNotification);
}

void HistoryView::keyDown(NSEvent* event) {
    switch (event->charactersIgnoringModifiers()) {
    case NSUpArrowFunctionKey:
        return choose(current_ - 1);
    case NSDownArrowFunctionKey:
        return choose(current_ + 1);
    default:
        event->passOn();
    }
}
