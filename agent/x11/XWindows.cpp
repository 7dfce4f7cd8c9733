// SPDX-License-Identifier: MIT
#include "agent/x11/XWindows.h"

#include "agent/x11/Properties.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace {

/// EWMH's mark of a request that comes from the user, not from a program.
constexpr std::uint32_t kFromPager = 2;

bool has(const std::vector<std::uint32_t>& numbers, std::uint32_t wanted) {
    return std::find(numbers.begin(), numbers.end(), wanted) != numbers.end();
}

/// The second of WM_CLASS's two texts, which a zero ends each.
std::string programIn(const std::string& both) {
    const std::size_t second = both.find('\0');
    return second == std::string::npos ? "" : both.c_str() + second + 1;
}

} // namespace

std::vector<std::uint32_t> XWindows::rootNumbers(const char* name) const {
    return numbersOf(server_, askProperty(server_, server_.root(), name));
}

bool XWindows::isOrdinary(xcb_window_t window) const {
    const auto types = numbersOf(server_, askProperty(server_, window, "_NET_WM_WINDOW_TYPE"));
    return !has(types, server_.atom("_NET_WM_WINDOW_TYPE_DESKTOP")) &&
           !has(types, server_.atom("_NET_WM_WINDOW_TYPE_DOCK"));
}

std::optional<Windows::Id> XWindows::active() const {
    const auto active = rootNumbers("_NET_ACTIVE_WINDOW");
    if (active.empty() || active[0] == XCB_NONE || !isOrdinary(active[0]))
        return std::nullopt;
    return active[0];
}

std::string XWindows::programOf(xcb_window_t window) const {
    return programIn(bytesOf(server_, askProperty(server_, window, "WM_CLASS")));
}

std::vector<Windows::Window> XWindows::windows() const {
    std::vector<Window> windows;
    auto all = rootNumbers("_NET_CLIENT_LIST_STACKING");
    if (all.empty())
        all = rootNumbers("_NET_CLIENT_LIST");
    for (auto window = all.rbegin(); window != all.rend(); ++window) {
        const auto title = askProperty(server_, *window, "_NET_WM_NAME");
        const auto oldTitle = askProperty(server_, *window, "WM_NAME");
        const auto states = numbersOf(server_, askProperty(server_, *window, "_NET_WM_STATE"));
        const std::string text = bytesOf(server_, title), oldText = bytesOf(server_, oldTitle);
        if (isOrdinary(*window) && !has(states, server_.atom("_NET_WM_STATE_SKIP_TASKBAR")))
            windows.push_back({*window, text.empty() ? oldText : text});
    }
    return windows;
}

std::vector<Windows::Shown> XWindows::shown() const {
    std::vector<Shown> shown;
    const auto all = rootNumbers("_NET_CLIENT_LIST_STACKING");
    for (auto window = all.rbegin(); window != all.rend(); ++window)
        if (const auto area = areaOf(*window))
            shown.push_back({processOf(*window), *area});
    return shown;
}

/// The managed windows, and those that go round the window manager.
std::vector<xcb_window_t> XWindows::all() const {
    auto windows = rootNumbers("_NET_CLIENT_LIST");
    const XReply<xcb_query_tree_reply_t> tree(xcb_query_tree_reply(
        server_.connection(), xcb_query_tree(server_.connection(), server_.root()), nullptr));
    if (tree) {
        const xcb_window_t* children = xcb_query_tree_children(tree.get());
        windows.insert(windows.end(), children, children + tree->children_len);
    }
    return windows;
}

std::optional<Area> XWindows::placeOf(const std::string& program) const {
    const auto windows = all();
    std::vector<xcb_get_property_cookie_t> asked;
    for (const xcb_window_t window : windows)
        asked.push_back(askProperty(server_, window, "WM_CLASS"));
    std::optional<Area> place;
    for (std::size_t i = 0; i < windows.size(); ++i)
        if (programIn(bytesOf(server_, asked[i])) == program && !place)
            place = areaOf(windows[i]);
    return place;
}

std::optional<Area> XWindows::areaOf(xcb_window_t window) const {
    xcb_connection_t* connection = server_.connection();
    const auto stateAsked = xcb_get_window_attributes(connection, window);
    const auto geometryAsked = xcb_get_geometry(connection, window);
    const auto cornerAsked = xcb_translate_coordinates(connection, window, server_.root(), 0, 0);
    const XReply<xcb_get_window_attributes_reply_t> state(
        xcb_get_window_attributes_reply(connection, stateAsked, nullptr));
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, geometryAsked, nullptr));
    const XReply<xcb_translate_coordinates_reply_t> corner(
        xcb_translate_coordinates_reply(connection, cornerAsked, nullptr));
    if (!state || !geometry || !corner || state->map_state != XCB_MAP_STATE_VIEWABLE)
        return std::nullopt;
    return Area{static_cast<double>(corner->dst_x), static_cast<double>(corner->dst_y),
                static_cast<double>(geometry->width), static_cast<double>(geometry->height)};
}

std::uint32_t XWindows::processOf(xcb_window_t window) const {
    const auto number = numbersOf(server_, askProperty(server_, window, "_NET_WM_PID"));
    return number.empty() ? 0 : number[0];
}

bool XWindows::close(xcb_window_t window) {
    return request("_NET_CLOSE_WINDOW", window, {XCB_CURRENT_TIME, kFromPager});
}

bool XWindows::activate(xcb_window_t window) {
    return request("_NET_ACTIVE_WINDOW", window, {kFromPager, XCB_CURRENT_TIME, XCB_NONE});
}

bool XWindows::toggleDesktop() {
    const auto shown = rootNumbers("_NET_SHOWING_DESKTOP");
    const bool isShown = !shown.empty() && shown[0] != 0;
    return request("_NET_SHOWING_DESKTOP", server_.root(), {!isShown});
}

/// One that has gone may have left its list behind, but not its window.
bool XWindows::supports(const char* name) const {
    constexpr const char* kCheck = "_NET_SUPPORTING_WM_CHECK";
    const auto check = rootNumbers(kCheck);
    return !check.empty() && numbersOf(server_, askProperty(server_, check[0], kCheck)) == check &&
           has(rootNumbers("_NET_SUPPORTED"), server_.atom(name));
}

bool XWindows::request(const char* name, xcb_window_t window,
                       const std::vector<std::uint32_t>& data) {
    if (!supports(name))
        return false;
    xcb_client_message_event_t event = {};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = server_.atom(name);
    std::copy(data.begin(), data.end(), event.data.data32);
    send(event, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT);
    return true;
}

template <class Event>
void XWindows::send(const Event& event, std::uint32_t mask) {
    char bytes[32];
    static_assert(sizeof event == sizeof bytes);
    std::memcpy(bytes, &event, sizeof bytes);
    xcb_send_event(server_.connection(), 0, server_.root(), mask, bytes);
    server_.flush();
}

void XWindows::askForRootMenu() {
    constexpr xcb_button_t kMenuButton = 3;
    const xcb_screen_t& screen = server_.screen();
    xcb_button_press_event_t event = {};
    event.detail = kMenuButton;
    event.root = event.event = server_.root();
    event.root_x = event.event_x = static_cast<std::int16_t>(screen.width_in_pixels / 2);
    event.root_y = event.event_y = static_cast<std::int16_t>(screen.height_in_pixels / 2);
    event.same_screen = 1;
    event.response_type = XCB_BUTTON_PRESS; // a release would close the menu again
    send(event, XCB_EVENT_MASK_BUTTON_PRESS);
}

Area XWindows::windowAt(Place place) const {
    xcb_connection_t* connection = server_.connection();
    const xcb_window_t root = server_.root();
    const XReply<xcb_translate_coordinates_reply_t> found(xcb_translate_coordinates_reply(
        connection,
        xcb_translate_coordinates(connection, root, root,
                                  static_cast<std::int16_t>(std::lround(place.x)),
                                  static_cast<std::int16_t>(std::lround(place.y))),
        nullptr));
    const xcb_window_t window = found && found->child != XCB_NONE ? found->child : root;
    const XReply<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!geometry)
        return {};
    return {static_cast<double>(geometry->x), static_cast<double>(geometry->y),
            static_cast<double>(geometry->width), static_cast<double>(geometry->height)};
}
