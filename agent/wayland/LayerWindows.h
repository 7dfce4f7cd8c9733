// SPDX-License-Identifier: MIT
#pragma once

#include "agent/wayland/LayerWindow.h"

/// They always blend.
class LayerWindows final : public OverlayWindows {
public:
    /// It must outlive this, and hand out no events after it.
    explicit LayerWindows(WaylandDisplay& display);
    ~LayerWindows() override;

    std::unique_ptr<OverlayWindow> make() override;

    bool blend() const override { return true; }

    void onBlend(std::function<void()>) override {}

    void flush() override { display_.flush(); }

private:
    void followPointer();

    WaylandDisplay& display_;
    std::vector<LayerWindow*> windows_;
    wl_pointer* pointer_;
    const wl_surface* under_ = nullptr; ///< the pointer
    QPoint at_;                         ///< in it
};
