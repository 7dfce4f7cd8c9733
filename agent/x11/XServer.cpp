// SPDX-License-Identifier: MIT
#include "agent/x11/XServer.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <xcb/shape.h>
#include <xcb/xinput.h>
#include <xcb/xtest.h>

namespace {

const xcb_screen_t& screenOf(xcb_connection_t* connection, int number) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; number > 0; --number)
        xcb_screen_next(&screens);
    return *screens.data;
}

/// With 2.2 raw events come whoever holds the device.
bool hasInput(xcb_connection_t* connection) {
    const XReply<xcb_input_xi_query_version_reply_t> version(xcb_input_xi_query_version_reply(
        connection, xcb_input_xi_query_version(connection, 2, 2), nullptr));
    return version && (version->major_version > 2 ||
                       (version->major_version == 2 && version->minor_version >= 2));
}

} // namespace

std::unique_ptr<XServer> XServer::connect(std::string& fault) {
    std::signal(SIGPIPE, SIG_IGN);
    int number = 0;
    xcb_connection_t* connection = xcb_connect(nullptr, &number);
    if (xcb_connection_has_error(connection)) {
        xcb_disconnect(connection);
        fault = localized("Agent", "No X11 display can be reached.");
        return nullptr;
    }
    std::unique_ptr<XServer> server(new XServer(connection, screenOf(connection, number)));
    if (!server->hasExtensions(fault))
        return nullptr;
    server->watch();
    return server;
}

XServer::XServer(xcb_connection_t* connection, const xcb_screen_t& screen)
    : connection_(connection), screen_(screen) {}

XServer::~XServer() {
    QObject::disconnect(beforeWait_);
    notifier_.reset();
    xcb_disconnect(connection_);
}

bool XServer::hasExtensions(std::string& fault) {
    const auto* input = xcb_get_extension_data(connection_, &xcb_input_id);
    const auto* test = xcb_get_extension_data(connection_, &xcb_test_id);
    const auto* shape = xcb_get_extension_data(connection_, &xcb_shape_id);

    if (input)
        inputOpcode_ = input->major_opcode;

    const struct {
        const char* name;
        bool exists;
    } kExtensions[] = {
        {"XInput 2.2", input && input->present && hasInput(connection_)},
        {"XTEST", test && test->present},
        {"SHAPE", shape && shape->present},
    };

    for (const auto& [name, exists] : kExtensions) {
        if (exists)
            continue;
        fault =
            filled(localized("Agent", "The X11 display has no %1, which scanning needs."), {name});
        return false;
    }
    return true;
}

/// A reply that is waited for takes events along from the socket, so the queue is emptied before
/// each wait, too.
void XServer::watch() {
    readButtons();
    onEvent([this](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) == XCB_MAPPING_NOTIFY)
            readButtons();
    });
    notifier_ = std::make_unique<QSocketNotifier>(xcb_get_file_descriptor(connection_),
                                                  QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { drain(); });
    beforeWait_ = QObject::connect(QAbstractEventDispatcher::instance(),
                                   &QAbstractEventDispatcher::aboutToBlock,
                                   [this] { handle(xcb_poll_for_queued_event); });
}

void XServer::readButtons() {
    const XReply<xcb_get_pointer_mapping_reply_t> reply(
        xcb_get_pointer_mapping_reply(connection_, xcb_get_pointer_mapping(connection_), nullptr));
    if (!reply)
        return;
    const std::uint8_t* map = xcb_get_pointer_mapping_map(reply.get());
    buttons_.assign(map, map + xcb_get_pointer_mapping_map_length(reply.get()));
}

std::uint8_t XServer::deviceButton(std::uint32_t button) const {
    const auto found = std::find(buttons_.begin(), buttons_.end(), button);
    return static_cast<std::uint8_t>(found == buttons_.end() ? button
                                                             : found - buttons_.begin() + 1);
}

xcb_atom_t XServer::atom(const char* name) {
    const auto [known, isNew] = atoms_.try_emplace(name, XCB_ATOM_NONE);
    if (isNew) {
        const auto cookie =
            xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(std::strlen(name)), name);
        const XReply<xcb_intern_atom_reply_t> reply(
            xcb_intern_atom_reply(connection_, cookie, nullptr));
        if (reply)
            known->second = reply->atom;
    }
    return known->second;
}

void XServer::onEvent(std::function<void(const xcb_generic_event_t&)> handler) {
    handlers_.push_back(std::move(handler));
}

void XServer::drain() {
    handle(xcb_poll_for_event);
}

void XServer::handle(xcb_generic_event_t* (*next)(xcb_connection_t*)) {
    if (isHandling_)
        return;
    isHandling_ = true;
    while (const XReply<xcb_generic_event_t> event{next(connection_)})
        for (std::size_t i = 0; event->response_type != 0 && i < handlers_.size(); ++i)
            handlers_[i](*event);
    isHandling_ = false;
    flush();
    if (!notifier_ || !xcb_connection_has_error(connection_))
        return;
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater(); // it may be the one that called
    if (ended_)
        ended_();
}

void XServer::flush() {
    xcb_flush(connection_);
}

double XServer::momentOf(xcb_timestamp_t time) const {
    return ::momentOf(time);
}

double XServer::now() {
    return monotonicNow();
}
