// SPDX-License-Identifier: MIT
#pragma once

#include "agent/scan/Geometry.h"
#include "agent/wayland/WaylandObjects.h"

#include <QSocketNotifier>

#include <functional>
#include <string>
#include <vector>

struct zwlr_foreign_toplevel_manager_v1;
struct zwlr_layer_shell_v1;
struct zwlr_virtual_pointer_manager_v1;
struct zwp_virtual_keyboard_manager_v1;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;

class WaylandDisplay;

/// A screen of the compositor. Its place is in the compositor's own units, which count for all
/// screens together.
struct WaylandOutput {
    const WaylandDisplay* display;
    std::uint32_t name; ///< in the registry
    wl_output* output;
    zxdg_output_v1* places;
    Area area;
};

/// A connection to the compositor, apart from Qt's. It reads events as they arrive, and flushes
/// after them and before each wait of the event loop. Needs a QCoreApplication.
class WaylandDisplay {
public:
    /// Null with `fault` in words when there is no compositor, or it lacks what scanning needs:
    /// layers, virtual pointers and keyboards. What it offers is chosen by, not its name. Waits for
    /// a few answers.
    static std::unique_ptr<WaylandDisplay> connect(std::string& fault);
    ~WaylandDisplay();
    WaylandDisplay(const WaylandDisplay&) = delete;
    WaylandDisplay& operator=(const WaylandDisplay&) = delete;

    // What the compositor offers. Not null, but for the windows' list.
    wl_compositor* compositor() const { return compositor_; }

    wl_shm* memory() const { return memory_; }

    wl_seat* seat() const { return seat_; }

    zwlr_layer_shell_v1* layers() const { return layers_; }

    zwlr_virtual_pointer_manager_v1* pointers() const { return pointers_; }

    zwp_virtual_keyboard_manager_v1* keyboards() const { return keyboards_; }

    zwlr_foreign_toplevel_manager_v1* windows() const { return windows_; }

    /// Those with a place, the first one announced first. May be empty.
    std::vector<const WaylandOutput*> outputs() const;

    /// Called when screens come, go or change. A handler lives as long as the connection.
    void onOutputs(std::function<void()> changed) { outputsChanged_.push_back(std::move(changed)); }

    /// Called once when the compositor is gone. It may end the event loop, but not this object.
    void onEnd(std::function<void()> ended) { ended_ = std::move(ended); }

    /// Handles what has arrived. Does nothing while an event is handled.
    void drain();
    void flush();

    /// Is done when the compositor has done all that was asked for so far. The caller's.
    wl_callback* sync() { return wl_display_sync(display_); }

private:
    explicit WaylandDisplay(wl_display* display) : display_(display) {}

    void bind(wl_registry* registry, std::uint32_t name, const char* interface,
              std::uint32_t version);
    void addOutput(wl_registry* registry, std::uint32_t name, std::uint32_t version);
    void describe(WaylandOutput& output);
    void tell() const;
    void remove(std::uint32_t name);
    std::string missing() const;
    void watch();
    void lookForEnd();

    wl_display* display_;
    wl_registry* registry_ = nullptr;
    wl_compositor* compositor_ = nullptr;
    wl_shm* memory_ = nullptr;
    wl_seat* seat_ = nullptr;
    zwlr_layer_shell_v1* layers_ = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers_ = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards_ = nullptr;
    zwlr_foreign_toplevel_manager_v1* windows_ = nullptr;
    zxdg_output_manager_v1* places_ = nullptr;
    std::vector<std::unique_ptr<WaylandOutput>> outputs_;
    std::vector<std::function<void()>> outputsChanged_;
    std::function<void()> ended_;
    bool isHandling_ = false;
    std::unique_ptr<QSocketNotifier> notifier_; ///< null once the compositor is gone
    QMetaObject::Connection beforeWait_;
};
