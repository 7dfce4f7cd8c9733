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
#include <numeric>

REGISTER_CLASS(HistoryView);

namespace {

constexpr float kChartShare = 0.35F; ///< of the width, with the table beside it
constexpr float kMargin = 12;
constexpr float kColumnGap = 16;
constexpr float kRowSpace = 6; ///< besides the text's height
constexpr float kPointSize = 7;
constexpr float kLineWidth = 2;
constexpr double kLeastTop = 0.05; ///< s: smaller spreads don't fill the chart
constexpr int kMostPoints = 40;    ///< that the chart shows

TextAttributes attributes() {
    return {NSFont::systemFontOfSize(0)};
}

NSSize sizeOf(const std::string& text) {
    return sizeWithAttributes(createFromUTF8(text).get(), attributes());
}

void drawText(const std::string& text, const NSRect& place) {
    NSDrawString(createFromUTF8(text).get(), place, attributes());
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
    isMeasured_ = false;
    setNeedsDisplay(true);
}

/// Texts have a size only while the view is drawn.
void HistoryView::measure() {
    isMeasured_ = true;
    widths_ = {};
    makeRoomFor(cellsOf(tryout::pastTryHeadings()));
    for (const tryout::PastTry& past : tries_)
        makeRoomFor(cellsOf(tryout::pastTryRow(past)));
    const NSSize caption = sizeOf(tryout::chartText(chartTop()));
    captionWidth_ = caption.width;
    rowHeight_ = caption.height + kRowSpace;
}

HistoryView::Cells HistoryView::cellsOf(std::string_view row) {
    Cells cells;
    for (std::string& cell : cells)
        cell = tryout::cutCell(row);
    return cells;
}

void HistoryView::makeRoomFor(const Cells& cells) {
    for (std::size_t i = 0; i < kColumns; ++i)
        widths_[i] = std::max(widths_[i], sizeOf(cells[i]).width + kColumnGap);
}

void HistoryView::drawRect(const NSRect&) {
    if (!isMeasured_)
        measure();
    NSEraseRect(bounds());
    NSColor::keyboardFocusIndicatorColor().set();
    NSFrameRectWithWidth(bounds(), isFirstResponder() ? 3.F : 1.F);
    drawChart();
    drawTable();
}

double HistoryView::chartTop() const {
    double top = kLeastTop;
    for (const tryout::PastTry& past : tries_)
        top = std::max(top, past.spread);
    return top;
}

bool HistoryView::hasTableBeside() const {
    const float width = bounds().width - 2 * kMargin;
    const float table = std::accumulate(widths_.begin(), widths_.end(), kMargin);
    return table <= width * (1 - kChartShare) && captionWidth_ <= width * kChartShare - kMargin;
}

NSRect HistoryView::chartFrame() const {
    NSRect frame = NSInsetRect(bounds(), kMargin, kMargin / 2);
    if (hasTableBeside())
        frame.width = frame.width * kChartShare - kMargin;
    else
        frame.height = std::max(frame.height / 2, frame.height - 3 * rowHeight_);
    return frame;
}

NSRect HistoryView::tableFrame() const {
    const NSRect whole = NSInsetRect(bounds(), kMargin, kMargin / 2), chart = chartFrame();
    if (!hasTableBeside())
        return {whole.x, whole.y + chart.height, whole.width, whole.height - chart.height};
    const float left = whole.x + chart.width + kMargin;
    return {left, whole.y, whole.x + whole.width - left, whole.height};
}

void HistoryView::drawChart() const {
    const NSRect frame = chartFrame();
    const std::size_t count = std::min<std::size_t>(tries_.size(), kMostPoints);
    const std::span<const tryout::PastTry> shown(tries_.end() - static_cast<std::ptrdiff_t>(count),
                                                 tries_.end());
    const double top = chartTop();
    drawText(tryout::chartText(top), {frame.x, frame.y, frame.width, rowHeight_});
    const float bottom = frame.y + frame.height - kPointSize;
    const float height = frame.height - rowHeight_ - 2 * kPointSize;
    const float step = count > 1 ? (frame.width - kPointSize) / static_cast<float>(count - 1) : 0;
    NSPoint former = {};
    for (std::size_t i = 0; i < count; ++i) {
        const NSPoint point = {frame.x + kPointSize / 2 + step * static_cast<float>(i),
                               bottom - height * static_cast<float>(shown[i].spread / top)};
        if (i > 0)
            drawLine(former, point);
        NSRectFill({point.x - kPointSize / 2, point.y - kPointSize / 2, kPointSize, kPointSize});
        former = point;
    }
}

void HistoryView::drawTable() const {
    NSRect heading = tableFrame();
    heading.height = rowHeight_;
    drawRow(cellsOf(tryout::pastTryHeadings()), heading);
    NSRectFill({heading.x, heading.y + rowHeight_ - 1, heading.width, 1});
    for (int i = firstRow(); i < accessibilityCount(); ++i) {
        const NSRect row = rowFrame(i);
        if (isFirstResponder() && i == current_)
            NSFrameRectWithWidth(row, 1);
        drawRow(cellsOf(tryout::pastTryRow(tries_[static_cast<std::size_t>(i)])), row);
    }
}

void HistoryView::drawRow(const Cells& cells, const NSRect& row) const {
    float x = row.x + kColumnGap / 2;
    for (std::size_t i = 0; i < kColumns; ++i) {
        const float room = row.x + row.width - x;
        drawText(cells[i], {x, row.y, std::min(widths_[i], room), row.height});
        x += widths_[i];
    }
}

/// The last ones are shown, or those around the one with the keyboard's cursor.
int HistoryView::firstRow() const {
    const int room = std::max(static_cast<int>(tableFrame().height / rowHeight_) - 1, 1);
    return std::clamp(accessibilityCount() - room, 0, current_);
}

NSRect HistoryView::rowFrame(int index) const {
    const NSRect table = tableFrame();
    return {table.x, table.y + rowHeight_ * static_cast<float>(index - firstRow() + 1), table.width,
            rowHeight_};
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
