// SPDX-License-Identifier: MIT
#pragma once

#include "agent/x11/XServer.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <optional>
#include <vector>

/// The windows' kind of pixels: 32 bits with alpha, or the screen's own where it has none of those.
struct OverlayVisual {
    explicit OverlayVisual(XServer& server);

    std::uint8_t depth;
    xcb_visualid_t id;
    xcb_colormap_t colormap;
    QImage::Format format; ///< of an image with the same pixels

    /// A colour with premultiplied alpha as a pixel.
    std::uint32_t pixel(QRgb color) const;
};

/// A window over all others that takes no clicks and that window managers leave alone. The server
/// paints what is in it: moving and raising it is all that a frame needs.
class OverlayWindow {
public:
    /// The parts of a window of that size, without its edge, that are to be seen, in its pixels.
    using Outline = std::function<std::vector<xcb_rectangle_t>(QSize)>;

    /// Both must outlive it. It is hidden and has no content.
    OverlayWindow(XServer& server, const OverlayVisual& visual);
    ~OverlayWindow();
    OverlayWindow(const OverlayWindow&) = delete;
    OverlayWindow& operator=(const OverlayWindow&) = delete;

    /// Premultiplied alpha.
    void fill(QRgb color);
    /// Of the visual's format. It isn't kept.
    void paint(const QImage& image);
    /// An edge of that many pixels inside of the window's place. Premultiplied alpha.
    void setEdge(int width, QRgb color);
    /// Empty: all of it is seen.
    void setOutline(Outline outline);

    /// Shows it there: directly below that sibling, or on top of all windows for XCB_NONE. Gives
    /// its id. An empty place hides it.
    xcb_window_t show(const QRect& place, xcb_window_t above);
    void hide();

private:
    void clear();
    void shapeTo(QSize size);

    XServer& server_;
    const OverlayVisual& visual_;
    xcb_window_t window_;
    int edge_ = 0;
    Outline outline_;
    std::optional<QSize> shaped_; ///< what the shape was made for, without the edge
    bool isShown_ = false;
};
