// SPDX-License-Identifier: MIT
#include "agent/x11/Panels.h"

#include "agent/x11/Properties.h"

#include <algorithm>
#include <limits>

namespace {

/// The reserved strip at the top of all screens together, EWMH's _NET_WM_STRUT_PARTIAL: from the
/// desktop's top edge down to `depth`, between the columns.
struct Strut {
    double depth, from, to;
};

Strut strutOf(const std::vector<std::uint32_t>& partial, const std::vector<std::uint32_t>& whole) {
    constexpr std::size_t kTop = 2, kTopStart = 8, kTopEnd = 9;
    if (partial.size() > kTopEnd)
        return {static_cast<double>(partial[kTop]), static_cast<double>(partial[kTopStart]),
                static_cast<double>(partial[kTopEnd])};
    if (whole.size() > kTop) // of the older _NET_WM_STRUT: over the whole width
        return {static_cast<double>(whole[kTop]), 0, std::numeric_limits<double>::max()};
    return {};
}

std::vector<Strut> topStruts(XServer& server) {
    struct Asked {
        xcb_get_property_cookie_t type, partial, whole;
    };

    std::vector<Asked> asked;
    for (const xcb_window_t window :
         numbersOf(server, askProperty(server, server.root(), "_NET_CLIENT_LIST")))
        asked.push_back({askProperty(server, window, "_NET_WM_WINDOW_TYPE"),
                         askProperty(server, window, "_NET_WM_STRUT_PARTIAL"),
                         askProperty(server, window, "_NET_WM_STRUT")});
    const xcb_atom_t dock = server.atom("_NET_WM_WINDOW_TYPE_DOCK");
    std::vector<Strut> struts;
    for (const Asked& window : asked) {
        const auto types = numbersOf(server, window.type);
        const auto partial = numbersOf(server, window.partial);
        const Strut strut = strutOf(partial, numbersOf(server, window.whole));
        if (strut.depth > 0 && std::find(types.begin(), types.end(), dock) != types.end())
            struts.push_back(strut);
    }
    return struts;
}

/// Where windows may begin, from the desktop's top edge; 0 when the window manager doesn't say.
double workAreaTop(XServer& server) {
    constexpr std::size_t kDesktop = 4, kTop = 1; // numbers a desktop; the second is y
    const auto currentAsked = askProperty(server, server.root(), "_NET_CURRENT_DESKTOP");
    const auto areaAsked = askProperty(server, server.root(), "_NET_WORKAREA");
    const auto current = numbersOf(server, currentAsked);
    const auto areas = numbersOf(server, areaAsked);
    const std::size_t place = kDesktop * (current.empty() ? 0 : current[0]) + kTop;
    return place < areas.size() ? areas[place] : 0;
}

/// How far into the screen that reaches, 0 where it belongs to another one. What takes more than
/// half of it is no panel.
double panelOf(const Area& screen, double depth) {
    const double panel = depth - screen.top;
    return panel > 0 && panel < screen.height / 2 ? panel : 0;
}

} // namespace

void measurePanels(XServer& server, std::vector<Screen>& screens) {
    const auto struts = topStruts(server);
    for (Screen& screen : screens) {
        screen.panel = 0;
        for (const Strut& strut : struts)
            if (strut.from < screen.area.right() && strut.to >= screen.area.left)
                screen.panel = std::max(screen.panel, panelOf(screen.area, strut.depth));
    }
    if (screens.size() == 1 && screens[0].panel == 0)
        screens[0].panel = panelOf(screens[0].area, workAreaTop(server));
}
