// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/OverlayWindow.h"
#include "agent/wayland/WaylandDisplay.h"

struct zwlr_layer_surface_v1;

/// A window in the layer above all others, full-screen ones too. It has a surface on each screen,
/// of which at most one is seen: that of the screen where most of its place lies. So siblings
/// stay in the order in which they were made, the last one on top. The compositor keeps what is in
/// it: moving it is a change of its margin.
class LayerWindow final : public OverlayWindow {
public:
    /// Both must outlive it. It enters itself into `siblings` while it lives.
    LayerWindow(WaylandDisplay& display, std::vector<LayerWindow*>& siblings);
    ~LayerWindow() override;

    void fill(QRgb color) override;
    void paint(const QImage& image) override;
    void setEdge(int width, QRgb color) override;
    void setOutline(Outline outline) override;
    void takeClicks(std::function<void(QPoint)> clicked) override;
    /// The order is fixed: `above` is only passed on.
    const OverlayWindow* show(const QRect& place, const OverlayWindow* above) override;
    void hide() override;

    /// The screens are others now. What was shown is hidden.
    void followScreens();

    /// The main button went down on a surface. Nothing happens if it isn't one of this window's.
    void click(const wl_surface* surface, QPoint place) const;

private:
    /// The window on one screen.
    struct Part {
        LayerWindow* window;
        const WaylandOutput* screen;
        wl_surface* surface;
        zwlr_layer_surface_v1* layer;
        bool isWanted = false;     ///< to be seen
        bool isConfigured = false; ///< it may have a content
        /// Not null while it was hidden and the compositor may not know yet: what it says until
        /// then is of the time before.
        wl_callback* leaving = nullptr;
        QPoint corner = {}; ///< on the screen
        QSize size = {};    ///< of its content
    };

    void addPart(const WaylandOutput& screen);
    void setInput(const Part& part) const;
    void removeParts();
    void place(Part& part);
    void hide(Part& part);
    static void configured(Part& part, std::uint32_t serial);
    static void hasLeft(Part& part);
    void draw(const Part& part);
    static void damage(const Part& part);
    void redraw();
    QImage picture() const;

    WaylandDisplay& display_;
    std::vector<LayerWindow*>& siblings_;
    std::vector<std::unique_ptr<Part>> parts_;
    QRect place_;
    QRgb color_ = 0, edgeColor_ = 0;
    int edge_ = 0;
    QImage image_; ///< null: it is filled
    Outline outline_;
    std::function<void(QPoint)> clicked_;
};
