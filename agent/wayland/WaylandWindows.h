// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Windows.h"
#include "agent/wayland/FreeArea.h"

struct zwlr_foreign_toplevel_handle_v1;

/// The list of windows that a compositor keeps for task bars: titles, programs and which one is
/// active, but neither places nor processes. Of a keyboard on the screen it sees what windows lose.
class WaylandWindows final : public Windows {
public:
    /// It must outlive it. Without a list in the compositor there are no windows.
    explicit WaylandWindows(WaylandDisplay& display);
    ~WaylandWindows() override;

    std::optional<Id> active() const override;
    std::string programOf(Id window) const override;

    std::uint32_t processOf(Id) const override { return 0; }

    /// Of Squeekboard, which lies at a screen's bottom.
    std::optional<Area> placeOf(const std::string& program) const override;

    std::vector<Window> windows() const override;

    std::vector<Shown> shown() const override { return {}; }

    /// The whole screen.
    Area windowAt(Place place) const override;
    bool close(Id window) override;
    bool activate(Id window) override;

    bool toggleDesktop() override { return false; }

    void askForRootMenu() override {}

    /// Called when another window is active.
    void onActive(std::function<void()> changed) { activeChanged_ = std::move(changed); }

private:
    struct Known {
        WaylandWindows* list;
        Id id;
        zwlr_foreign_toplevel_handle_v1* handle;
        std::string title = {}, program = {};
        bool isActive = false;
    };

    void add(zwlr_foreign_toplevel_handle_v1* handle);
    void setActive(const Known& window, bool isActive);
    void remove(const Known& window);
    const Known* find(Id id) const;

    void followScreens();

    WaylandDisplay& display_;
    std::vector<std::unique_ptr<FreeArea>> free_; ///< of each screen
    std::vector<std::unique_ptr<Known>> all_;     ///< the one that was active last first
    Id lastId_ = 0;
    std::function<void()> activeChanged_;
};
