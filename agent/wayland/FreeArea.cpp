// SPDX-License-Identifier: MIT
#include "agent/wayland/FreeArea.h"

#include "wlr-layer-shell-unstable-v1.h"

#include <algorithm>

FreeArea::FreeArea(WaylandDisplay& display, const WaylandOutput& screen)
    : screen_(screen), surface_(wl_compositor_create_surface(display.compositor())),
      layer_(zwlr_layer_shell_v1_get_layer_surface(display.layers(), surface_, screen.output,
                                                   ZWLR_LAYER_SHELL_V1_LAYER_BACKGROUND,
                                                   "korvex")) {
    static constexpr zwlr_layer_surface_v1_listener kListener = {
        [](void* self, zwlr_layer_surface_v1*, std::uint32_t serial, std::uint32_t,
           std::uint32_t height) { static_cast<FreeArea*>(self)->configured(serial, height); },
        [](void*, zwlr_layer_surface_v1*) {}};
    zwlr_layer_surface_v1_add_listener(layer_, &kListener, this);
    zwlr_layer_surface_v1_set_anchor(
        layer_, ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                    ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT);
    wl_surface_commit(surface_);
}

FreeArea::~FreeArea() {
    zwlr_layer_surface_v1_destroy(layer_);
    wl_surface_destroy(surface_);
}

void FreeArea::configured(std::uint32_t serial, std::uint32_t height) {
    zwlr_layer_surface_v1_ack_configure(layer_, serial);
    height_ = height;
    highest_ = std::max(highest_, height_);
}

Area FreeArea::risen() const {
    const Area& all = screen_.area;
    const double risen = highest_ - height_;
    return {all.left, all.bottom() - risen, all.width, risen};
}
