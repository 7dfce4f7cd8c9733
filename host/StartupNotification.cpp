// SPDX-License-Identifier: MIT
#include "host/StartupNotification.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <xcb/xcb.h>

namespace {

class Messenger {
public:
    Messenger(xcb_connection_t* connection, xcb_window_t window)
        : connection_(connection), window_(window),
          root_(xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root) {}

    /// Source 1 means that an application asks.
    void activate(xcb_timestamp_t time) {
        xcb_client_message_event_t event = message("_NET_ACTIVE_WINDOW", 32);
        event.data.data32[0] = 1;
        event.data.data32[1] = time;
        constexpr auto kToWindowManager =
            XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        send(event, kToWindowManager);
    }

    /// Sends the text and its final zero in parts of 20 bytes.
    void broadcast(const QByteArray& text) {
        xcb_client_message_event_t event = message("_NET_STARTUP_INFO_BEGIN", 8);
        const xcb_atom_t following = atom("_NET_STARTUP_INFO");
        for (qsizetype sent = 0; sent <= text.size(); sent += sizeof event.data) {
            const auto part = text.mid(sent, sizeof event.data);
            std::memset(&event.data, 0, sizeof event.data);
            std::copy(part.begin(), part.end(), event.data.data8);
            send(event, XCB_EVENT_MASK_PROPERTY_CHANGE);
            event.type = following;
        }
    }

private:
    xcb_atom_t atom(const char* name) {
        const auto cookie =
            xcb_intern_atom(connection_, false, static_cast<uint16_t>(std::strlen(name)), name);
        auto* reply = xcb_intern_atom_reply(connection_, cookie, nullptr);
        xcb_atom_t atom = XCB_ATOM_NONE;
        if (reply)
            atom = reply->atom;
        std::free(reply);
        return atom;
    }

    xcb_client_message_event_t message(const char* type, uint8_t format) {
        return {.response_type = XCB_CLIENT_MESSAGE,
                .format = format,
                .sequence = 0,
                .window = window_,
                .type = atom(type),
                .data = {}};
    }

    void send(const xcb_client_message_event_t& event, uint32_t mask) {
        xcb_send_event(connection_, false, root_, mask, reinterpret_cast<const char*>(&event));
        xcb_flush(connection_);
    }

    xcb_connection_t* connection_;
    xcb_window_t window_, root_;
};

/// In milliseconds of the X server. 0 when the ID has none.
xcb_timestamp_t timeOf(const QString& startupID) {
    const auto mark = QStringLiteral("_TIME");
    const auto place = startupID.lastIndexOf(mark);
    return place < 0 ? 0 : startupID.mid(place + mark.size()).toUInt();
}

} // namespace

void completeStartup(QWindow* window, const QString& startupID) {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11 || startupID.isEmpty())
        return;
    Messenger messenger(x11->connection(), static_cast<xcb_window_t>(window->winId()));
    if (const xcb_timestamp_t time = timeOf(startupID))
        messenger.activate(time);
    QString quoted = startupID;
    quoted.replace('\\', "\\\\").replace('"', "\\\"");
    messenger.broadcast("remove: ID=\"" + quoted.toUtf8() + '"');
}
