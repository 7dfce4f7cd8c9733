// SPDX-License-Identifier: MIT
#include "agent/wayland/LayerWindows.h"

#include <linux/input-event-codes.h>

LayerWindows::LayerWindows(WaylandDisplay& display)
    : display_(display), pointer_(wl_seat_get_pointer(display.seat())) {
    display_.onOutputs([this] {
        for (LayerWindow* const window : windows_)
            window->followScreens();
    });
    followPointer();
}

LayerWindows::~LayerWindows() {
    wl_pointer_destroy(pointer_);
}

std::unique_ptr<OverlayWindow> LayerWindows::make() {
    return std::make_unique<LayerWindow>(display_, windows_);
}

/// Only what is over a window that takes clicks comes.
void LayerWindows::followPointer() {
    static constexpr wl_pointer_listener kListener = {
        .enter =
            [](void* self, wl_pointer*, std::uint32_t, wl_surface* surface, wl_fixed_t x,
               wl_fixed_t y) {
                static_cast<LayerWindows*>(self)->under_ = surface;
                static_cast<LayerWindows*>(self)->at_ = {wl_fixed_to_int(x), wl_fixed_to_int(y)};
            },
        .leave = [](void* self, wl_pointer*, std::uint32_t,
                    wl_surface*) { static_cast<LayerWindows*>(self)->under_ = nullptr; },
        .motion =
            [](void* self, wl_pointer*, std::uint32_t, wl_fixed_t x, wl_fixed_t y) {
                static_cast<LayerWindows*>(self)->at_ = {wl_fixed_to_int(x), wl_fixed_to_int(y)};
            },
        .button =
            [](void* data, wl_pointer*, std::uint32_t, std::uint32_t, std::uint32_t button,
               std::uint32_t state) {
                const auto& self = *static_cast<LayerWindows*>(data);
                if (button == BTN_LEFT && state == WL_POINTER_BUTTON_STATE_PRESSED)
                    for (const LayerWindow* const window : std::vector(self.windows_))
                        window->click(self.under_, self.at_);
            },
        .axis = [](void*, wl_pointer*, std::uint32_t, std::uint32_t, wl_fixed_t) {},
        .frame = [](void*, wl_pointer*) {},
        .axis_source = [](void*, wl_pointer*, std::uint32_t) {},
        .axis_stop = [](void*, wl_pointer*, std::uint32_t, std::uint32_t) {},
        .axis_discrete = [](void*, wl_pointer*, std::uint32_t, std::int32_t) {},
        .axis_value120 = nullptr,
    };
    wl_pointer_add_listener(pointer_, &kListener, this);
}
