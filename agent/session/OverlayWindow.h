// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QRect>

#include <functional>
#include <memory>
#include <vector>

/// A window over all others that window managers leave alone. It takes no clicks until it is told
/// to. What is in it is kept where it is drawn: moving it is all that a frame needs.
class OverlayWindow {
public:
    /// The parts of a window of that size, without its edge, that are to be seen, in its pixels.
    using Outline = std::function<std::vector<QRect>(QSize)>;

    /// It is hidden and has no content at first.
    virtual ~OverlayWindow() = default;
    OverlayWindow(const OverlayWindow&) = delete;
    OverlayWindow& operator=(const OverlayWindow&) = delete;

    /// Premultiplied alpha.
    virtual void fill(QRgb color) = 0;
    /// Of any format. It isn't kept.
    virtual void paint(const QImage& image) = 0;
    /// An edge of that many pixels inside of the window's place. Premultiplied alpha.
    virtual void setEdge(int width, QRgb color) = 0;
    /// Empty: all of it is seen.
    virtual void setOutline(Outline outline) = 0;

    /// Main buttons that go down on it come here, in its pixels, and to nobody else.
    virtual void takeClicks(std::function<void(QPoint)> clicked) = 0;

    /// Shows it there: directly below that sibling, or on top of all windows for null. Gives what
    /// is lowest then. An empty place hides it.
    virtual const OverlayWindow* show(const QRect& place, const OverlayWindow* above) = 0;
    virtual void hide() = 0;

protected:
    OverlayWindow() = default;
};

/// Makes them. It outlives them.
class OverlayWindows {
public:
    virtual ~OverlayWindows() = default;

    /// Where siblings have a fixed order, one that is made later is above.
    virtual std::unique_ptr<OverlayWindow> make() = 0;

    /// Whether colours and images are seen with their transparency. Without it they should have
    /// none.
    virtual bool blend() const = 0;
    /// Called when that changes.
    virtual void onBlend(std::function<void()> changed) = 0;

    /// What was shown, painted and hidden is on its way.
    virtual void flush() = 0;
};
