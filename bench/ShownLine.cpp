// SPDX-License-Identifier: MIT
#include "bench/ShownLine.h"

#include "agent/x11/XServer.h"

ShownLine::ShownLine(int length, int thickness)
    : connection_(xcb_connect(nullptr, nullptr)), length_(length), thickness_(thickness) {}

ShownLine::~ShownLine() {
    xcb_disconnect(connection_);
}

std::optional<ShownLine::Look> ShownLine::look() {
    if (window_ == XCB_NONE)
        find();
    if (window_ == XCB_NONE)
        return {};
    const double before = XServer::now();
    const auto asked = xcb_get_geometry(connection_, window_);
    const bool shown = isShown(window_);
    const XReply<xcb_get_geometry_reply_t> place(
        xcb_get_geometry_reply(connection_, asked, nullptr));
    if (!place || !shown)
        return {};
    return Look{(before + XServer::now()) / 2, place->y + thickness_ / 2.0};
}

bool ShownLine::isShown(xcb_window_t window) const {
    const XReply<xcb_get_window_attributes_reply_t> attributes(xcb_get_window_attributes_reply(
        connection_, xcb_get_window_attributes(connection_, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE;
}

void ShownLine::find() {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    const XReply<xcb_query_tree_reply_t> tree(
        xcb_query_tree_reply(connection_, xcb_query_tree(connection_, root), nullptr));
    if (!tree)
        return;
    const xcb_window_t* children = xcb_query_tree_children(tree.get());
    for (int i = 0; i < xcb_query_tree_children_length(tree.get()); ++i) {
        const XReply<xcb_get_geometry_reply_t> size(xcb_get_geometry_reply(
            connection_, xcb_get_geometry(connection_, children[i]), nullptr));
        if (size && size->width == length_ && size->height == thickness_ && isShown(children[i]))
            window_ = children[i];
    }
}
