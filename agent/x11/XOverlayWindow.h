// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/OverlayWindow.h"
#include "agent/x11/Compositor.h"
#include "agent/x11/XServer.h"

#include <QImage>
#include <QRect>

#include <functional>
#include <memory>
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

/// The server paints what is in it. Window managers don't see it: it is override-redirect.
class XOverlayWindow final : public OverlayWindow {
public:
    /// Both must outlive it.
    XOverlayWindow(XServer& server, const OverlayVisual& visual);
    ~XOverlayWindow() override;

    void fill(QRgb color) override;
    void paint(const QImage& image) override;
    void setEdge(int width, QRgb color) override;
    void setOutline(Outline outline) override;
    void takeClicks(std::function<void(QPoint)> clicked) override;
    const OverlayWindow* show(const QRect& place, const OverlayWindow* above) override;
    void hide() override;

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
    std::shared_ptr<std::function<void(QPoint)>> clicked_; ///< null: it takes none
};

/// They blend while a compositor runs.
class XOverlayWindows final : public OverlayWindows {
public:
    /// It lives as long as `server` hands out events, and `server` outlives it.
    explicit XOverlayWindows(XServer& server);

    std::unique_ptr<OverlayWindow> make() override;
    bool blend() const override;
    void onBlend(std::function<void()> changed) override;
    void flush() override;

private:
    XServer& server_;
    const OverlayVisual visual_;
    std::function<void()> changed_;
    Compositor compositor_;
};
