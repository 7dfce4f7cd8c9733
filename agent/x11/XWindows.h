// SPDX-License-Identifier: MIT
#pragma once

#include "agent/session/Windows.h"
#include "agent/x11/XServer.h"

/// By EWMH, as a window manager keeps it. Each call is a few round trips to the server.
class XWindows final : public Windows {
public:
    /// `server` must outlive it.
    explicit XWindows(XServer& server) : server_(server) {}

    std::optional<Id> active() const override;
    /// The second part of WM_CLASS.
    std::string programOf(Id window) const override;
    std::uint32_t processOf(Id window) const override;
    std::optional<Area> placeOf(const std::string& program) const override;
    std::vector<Window> windows() const override;
    std::vector<Shown> shown() const override;
    Area windowAt(Place place) const override;
    bool close(Id window) override;
    bool activate(Id window) override;
    bool toggleDesktop() override;
    void askForRootMenu() override;

private:
    bool supports(const char* name) const;
    bool request(const char* name, xcb_window_t window, const std::vector<std::uint32_t>& data);
    template <class Event>
    void send(const Event& event, std::uint32_t mask);
    std::vector<std::uint32_t> rootNumbers(const char* name) const;
    std::vector<xcb_window_t> all() const;
    std::optional<Area> areaOf(xcb_window_t window) const;
    bool isOrdinary(xcb_window_t window) const;

    XServer& server_;
};
