// SPDX-License-Identifier: MIT
#pragma once

#include "agent/wayland/WaylandDisplay.h"

struct zwlr_layer_surface_v1;

/// How high the part of a screen is that panels and keyboards leave to windows: the size that the
/// compositor would give a surface that fills it. The surface has no content.
class FreeArea {
public:
    /// Both must outlive it.
    FreeArea(WaylandDisplay& display, const WaylandOutput& screen);
    ~FreeArea();
    FreeArea(const FreeArea&) = delete;
    FreeArea& operator=(const FreeArea&) = delete;

    /// What has come up at the screen's bottom since it was highest. Empty for nothing.
    Area risen() const;

private:
    void configured(std::uint32_t serial, std::uint32_t height);

    const WaylandOutput& screen_;
    wl_surface* surface_;
    zwlr_layer_surface_v1* layer_;
    double height_ = 0, highest_ = 0;
};
