// SPDX-License-Identifier: MIT
#include "agent/wayland/WaylandWindows.h"

#include "agent/session/OnScreenKeyboard.h"
#include "wlr-foreign-toplevel-management-unstable-v1.h"

#include <algorithm>
#include <span>
#include <utility>

WaylandWindows::WaylandWindows(WaylandDisplay& display) : display_(display) {
    display_.onOutputs([this] { followScreens(); });
    followScreens();
    static constexpr zwlr_foreign_toplevel_manager_v1_listener kListener = {
        [](void* self, zwlr_foreign_toplevel_manager_v1*, zwlr_foreign_toplevel_handle_v1* handle) {
            static_cast<WaylandWindows*>(self)->add(handle);
        },
        [](void*, zwlr_foreign_toplevel_manager_v1*) {}};
    if (display_.windows())
        zwlr_foreign_toplevel_manager_v1_add_listener(display_.windows(), &kListener, this);
}

WaylandWindows::~WaylandWindows() {
    for (const auto& window : all_)
        zwlr_foreign_toplevel_handle_v1_destroy(window->handle);
}

void WaylandWindows::add(zwlr_foreign_toplevel_handle_v1* handle) {
    using Handle = zwlr_foreign_toplevel_handle_v1;
    static constexpr zwlr_foreign_toplevel_handle_v1_listener kListener = {
        .title = [](void* window, Handle*,
                    const char* title) { static_cast<Known*>(window)->title = title; },
        .app_id = [](void* window, Handle*,
                     const char* program) { static_cast<Known*>(window)->program = program; },
        .output_enter = [](void*, Handle*, wl_output*) {},
        .output_leave = [](void*, Handle*, wl_output*) {},
        .state =
            [](void* data, Handle*, wl_array* states) {
                const std::span all(static_cast<const std::uint32_t*>(states->data),
                                    states->size / sizeof(std::uint32_t));
                const auto& window = *static_cast<Known*>(data);
                window.list->setActive(
                    window, std::ranges::find(
                                all, ZWLR_FOREIGN_TOPLEVEL_HANDLE_V1_STATE_ACTIVATED) != all.end());
            },
        .done = [](void*, Handle*) {},
        .closed =
            [](void* data, Handle*) {
                const auto& window = *static_cast<Known*>(data);
                window.list->remove(window);
            },
        .parent = [](void*, Handle*, Handle*) {},
    };
    all_.push_back(std::make_unique<Known>(Known{this, ++lastId_, handle}));
    zwlr_foreign_toplevel_handle_v1_add_listener(handle, &kListener, all_.back().get());
}

void WaylandWindows::setActive(const Known& window, bool isActive) {
    const auto found = std::ranges::find(all_, window.id, &Known::id);
    if (std::exchange((*found)->isActive, isActive) == isActive || !isActive)
        return;
    std::rotate(all_.begin(), found, found + 1);
    if (activeChanged_)
        activeChanged_();
}

void WaylandWindows::remove(const Known& window) {
    zwlr_foreign_toplevel_handle_v1_destroy(window.handle);
    all_.erase(std::ranges::find(all_, window.id, &Known::id));
}

const WaylandWindows::Known* WaylandWindows::find(Id id) const {
    const auto found = std::ranges::find(all_, id, &Known::id);
    return found == all_.end() ? nullptr : found->get();
}

std::optional<Windows::Id> WaylandWindows::active() const {
    const auto found = std::ranges::find(all_, true, &Known::isActive);
    return found == all_.end() ? std::nullopt : std::optional((*found)->id);
}

std::string WaylandWindows::programOf(Id window) const {
    const Known* const known = find(window);
    return known ? known->program : "";
}

std::vector<Windows::Window> WaylandWindows::windows() const {
    std::vector<Window> windows;
    for (const auto& known : all_)
        windows.push_back({known->id, known->title});
    return windows;
}

void WaylandWindows::followScreens() {
    free_.clear();
    for (const WaylandOutput* output : display_.outputs())
        free_.push_back(std::make_unique<FreeArea>(display_, *output));
}

std::optional<Area> WaylandWindows::placeOf(const std::string& program) const {
    if (program != kSqueekboard.program)
        return std::nullopt;
    for (const auto& screen : free_)
        if (const Area place = screen->risen(); !place.isEmpty())
            return place;
    return std::nullopt;
}

Area WaylandWindows::windowAt(Place place) const {
    for (const WaylandOutput* output : display_.outputs())
        if (output->area.contains(place))
            return output->area;
    return {};
}

bool WaylandWindows::close(Id window) {
    const Known* const known = find(window);
    if (known)
        zwlr_foreign_toplevel_handle_v1_close(known->handle);
    display_.flush();
    return known;
}

bool WaylandWindows::activate(Id window) {
    const Known* const known = find(window);
    if (known)
        zwlr_foreign_toplevel_handle_v1_activate(known->handle, display_.seat());
    display_.flush();
    return known;
}
