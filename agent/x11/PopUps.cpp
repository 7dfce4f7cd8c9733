// SPDX-License-Identifier: MIT
#include "agent/x11/PopUps.h"

#include "agent/x11/Properties.h"
#include "agent/x11/Screens.h"

#include <algorithm>

namespace {

/// Pixels. Smaller windows are helpers of toolkits, no menus.
constexpr double kLeastSide = 16;

/// The types of EWMH that no menu has.
constexpr const char* kOtherTypes[] = {
    "_NET_WM_WINDOW_TYPE_DESKTOP", "_NET_WM_WINDOW_TYPE_DND",
    "_NET_WM_WINDOW_TYPE_DOCK",    "_NET_WM_WINDOW_TYPE_SPLASH",
    "_NET_WM_WINDOW_TYPE_TOOLTIP", "_NET_WM_WINDOW_TYPE_NOTIFICATION",
};

/// The class that all windows of the agent have, its Qt windows too.
constexpr char kOurClass[] = "korvex-agent";

bool coversAScreen(const Area& area, const std::vector<Screen>& screens) {
    return std::any_of(screens.begin(), screens.end(),
                       [&](const Screen& screen) { return covers(area, screen.area); });
}

/// `extents` is _GTK_FRAME_EXTENTS: what a program draws around its window, left, right, top,
/// bottom.
Area withoutShadow(const Area& area, const std::vector<std::uint32_t>& extents) {
    if (extents.size() != 4)
        return area;
    return {area.left + extents[0], area.top + extents[2], area.width - extents[0] - extents[1],
            area.height - extents[2] - extents[3]};
}

} // namespace

// A grab that is asked for with a window that isn't shown never comes about: the server says
// whether another one stands in its way, and else that the window can't be seen.
PopUps::PopUps(XServer& server) : server_(server), probe_(xcb_generate_id(server.connection())) {
    xcb_create_window(server.connection(), XCB_COPY_FROM_PARENT, probe_, server.root(), -1, -1, 1,
                      1, 0, XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
}

PopUps::~PopUps() {
    xcb_destroy_window(server_.connection(), probe_);
}

std::vector<Area> PopUps::menus(const std::vector<Screen>& screens) {
    const auto windows = overWindows();

    struct Asked {
        xcb_get_property_cookie_t type, name, extents;
    };

    std::vector<Asked> asked;
    for (const Window& window : windows)
        asked.push_back({askProperty(server_, window.id, "_NET_WM_WINDOW_TYPE"),
                         askProperty(server_, window.id, "WM_CLASS"),
                         askProperty(server_, window.id, "_GTK_FRAME_EXTENTS")});
    std::vector<xcb_atom_t> others;
    for (const char* type : kOtherTypes)
        others.push_back(server_.atom(type));

    std::vector<Area> menus;
    for (std::size_t i = 0; i < windows.size(); ++i) {
        const auto types = numbersOf(server_, asked[i].type);
        const bool isOther = std::find_first_of(types.begin(), types.end(), others.begin(),
                                                others.end()) != types.end();
        const bool isOurWindow =
            bytesOf(server_, asked[i].name).find(kOurClass) != std::string::npos;
        const Area area = withoutShadow(windows[i].area, numbersOf(server_, asked[i].extents));
        if (!isOther && !isOurWindow && std::min(area.width, area.height) >= kLeastSide &&
            !coversAScreen(area, screens))
            menus.push_back(area);
    }
    if (!menus.empty() && !pointerIsHeld())
        menus.clear();
    return menus;
}

bool PopUps::lockWindowIsUp(const std::vector<Screen>& screens) {
    const auto windows = overWindows();
    return std::any_of(windows.begin(), windows.end(),
                       [&](const Window& window) { return coversAScreen(window.area, screens); }) &&
           pointerIsHeld() && keyboardIsHeld();
}

/// Made over this connection, or by the server itself: a compositor's surface.
bool PopUps::isOurs(xcb_window_t window) const {
    const auto* setup = xcb_get_setup(server_.connection());
    const auto client = window & ~setup->resource_id_mask;
    return client == setup->resource_id_base ||
           client == (server_.root() & ~setup->resource_id_mask);
}

/// The override-redirect windows of others that are shown, the topmost first.
std::vector<PopUps::Window> PopUps::overWindows() {
    xcb_connection_t* connection = server_.connection();
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection, xcb_query_tree(connection, server_.root()), nullptr));
    if (!tree)
        return {};
    const auto* first = xcb_query_tree_children(tree.get());
    std::vector<xcb_window_t> ids(first, first + tree->children_len);
    std::erase_if(ids, [this](xcb_window_t id) { return isOurs(id); });
    const auto openbox = openboxWindow();
    std::reverse(ids.begin(), ids.end());
    auto windows = inputOutput(ids);
    std::erase_if(windows, [&](const Window& window) {
        return !window.isOver && !(openbox && isMenuOf(*openbox, window.id));
    });
    return windows;
}

/// Openbox's own menus aren't override-redirect, as no window manager manages it. The window that
/// stands for it; none when another one runs.
std::optional<xcb_window_t> PopUps::openboxWindow() {
    const auto check =
        numbersOf(server_, askProperty(server_, server_.root(), "_NET_SUPPORTING_WM_CHECK"));
    if (check.empty() ||
        bytesOf(server_, askProperty(server_, check[0], "_NET_WM_NAME")) != "Openbox")
        return std::nullopt;
    return check[0];
}

/// A frame has the window of another program inside.
bool PopUps::isMenuOf(xcb_window_t manager, xcb_window_t window) {
    const auto clientOf = [mask = xcb_get_setup(server_.connection())->resource_id_mask](
                              xcb_window_t id) { return id & ~mask; };
    if (clientOf(window) != clientOf(manager))
        return false;
    const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        server_.connection(), xcb_query_tree(server_.connection(), window), nullptr));
    if (!tree)
        return false;
    const auto* first = xcb_query_tree_children(tree.get());
    return std::all_of(first, first + tree->children_len,
                       [&](xcb_window_t child) { return clientOf(child) == clientOf(manager); });
}

std::vector<PopUps::Window> PopUps::inputOutput(const std::vector<xcb_window_t>& ids) {
    xcb_connection_t* connection = server_.connection();

    struct Asked {
        xcb_get_window_attributes_cookie_t attributes;
        xcb_get_geometry_cookie_t geometry;
    };

    std::vector<Asked> asked;
    for (const xcb_window_t id : ids)
        asked.push_back(
            {xcb_get_window_attributes(connection, id), xcb_get_geometry(connection, id)});
    std::vector<Window> windows;
    for (std::size_t i = 0; i < ids.size(); ++i) {
        const XReply<xcb_get_window_attributes_reply_t> attributes(
            xcb_get_window_attributes_reply(connection, asked[i].attributes, nullptr));
        const XReply<xcb_get_geometry_reply_t> geometry(
            xcb_get_geometry_reply(connection, asked[i].geometry, nullptr));
        if (attributes && geometry && attributes->map_state == XCB_MAP_STATE_VIEWABLE &&
            attributes->_class == XCB_WINDOW_CLASS_INPUT_OUTPUT)
            windows.push_back({ids[i],
                               {static_cast<double>(geometry->x), static_cast<double>(geometry->y),
                                static_cast<double>(geometry->width + 2 * geometry->border_width),
                                static_cast<double>(geometry->height + 2 * geometry->border_width)},
                               attributes->override_redirect != 0});
    }
    return windows;
}

bool PopUps::pointerIsHeld() {
    xcb_connection_t* connection = server_.connection();
    const XReply<xcb_grab_pointer_reply_t> reply(xcb_grab_pointer_reply(
        connection,
        xcb_grab_pointer(connection, 0, probe_, 0, XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC,
                         XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
        nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}

bool PopUps::keyboardIsHeld() {
    xcb_connection_t* connection = server_.connection();
    const XReply<xcb_grab_keyboard_reply_t> reply(
        xcb_grab_keyboard_reply(connection,
                                xcb_grab_keyboard(connection, 0, probe_, XCB_CURRENT_TIME,
                                                  XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC),
                                nullptr));
    return reply && reply->status == XCB_GRAB_STATUS_ALREADY_GRABBED;
}
