// SPDX-License-Identifier: MIT
#include "agent/x11/Compositor.h"

#include <xcb/xfixes.h>

#include <utility>

namespace {

/// EWMH: a compositor owns the selection of its screen.
std::string selectionName(const XServer& server) {
    int number = 0;
    auto roots = xcb_setup_roots_iterator(xcb_get_setup(server.connection()));
    for (; roots.rem > 0 && roots.data != &server.screen(); xcb_screen_next(&roots))
        ++number;
    return "_NET_WM_CM_S" + std::to_string(number);
}

} // namespace

Compositor::Compositor(XServer& server, std::function<void()> changed)
    : changed_(std::move(changed)) {
    xcb_connection_t* connection = server.connection();
    const xcb_atom_t selection = server.atom(selectionName(server).c_str());
    follow(server, selection);
    const XReply<xcb_get_selection_owner_reply_t> owner(xcb_get_selection_owner_reply(
        connection, xcb_get_selection_owner(connection, selection), nullptr));
    isRunning_ = owner && owner->owner != XCB_NONE;
}

void Compositor::follow(XServer& server, xcb_atom_t selection) {
    xcb_connection_t* connection = server.connection();
    const auto* extension = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (!extension || !extension->present)
        return;
    // Its other requests need the version to be asked for first.
    const auto version =
        xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, XCB_XFIXES_MINOR_VERSION);
    xcb_discard_reply(connection, version.sequence);
    xcb_xfixes_select_selection_input(connection, server.root(), selection,
                                      XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY |
                                          XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    const int notify = extension->first_event + XCB_XFIXES_SELECTION_NOTIFY;
    server.onEvent([this, selection, notify](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7f) != notify)
            return;
        const auto& told = reinterpret_cast<const xcb_xfixes_selection_notify_event_t&>(event);
        const bool runs = told.owner != XCB_NONE;
        if (told.selection == selection && std::exchange(isRunning_, runs) != runs)
            changed_();
    });
}
