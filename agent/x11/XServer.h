// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <cstdint>
#include <cstdlib>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>
#include <xcb/xcb.h>

/// A connection to the display server of the agent's own, apart from Qt's: presses come in and
/// clicks go out while Qt paints. It reads events as they arrive, and flushes after them and before
/// each wait of the event loop. Needs a QCoreApplication.
class XServer {
public:
    /// Null with `fault` in words when there is no server, or it lacks XInput 2.2, XTEST or SHAPE.
    /// From then on this process ignores SIGPIPE: a server that dies must not take it along.
    static std::unique_ptr<XServer> connect(std::string& fault);
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    xcb_connection_t* connection() const { return connection_; }

    xcb_window_t root() const { return screen_.root; }

    const xcb_screen_t& screen() const { return screen_; }

    /// The major code of XInput's requests, as generic events have it.
    std::uint8_t inputOpcode() const { return inputOpcode_; }

    /// An atom, made when there is none; asked for once.
    xcb_atom_t atom(const char* name);

    /// The button of XTEST's device that programs see as this one, 1 to 255: left hands may have
    /// them swapped.
    std::uint8_t deviceButton(std::uint32_t button) const;

    /// Every event goes to every handler, in the order of their registration. A handler lives as
    /// long as the connection. Errors of requests without a reply are dropped.
    void onEvent(std::function<void(const xcb_generic_event_t&)> handler);

    /// Called once when the server is gone. All requests do nothing from then on, and replies are
    /// null. It may end the event loop, but not this object.
    void onEnd(std::function<void()> handler) { ended_ = std::move(handler); }

    /// Handles what has arrived. Call it before a frame is drawn, so that a press comes first. Does
    /// nothing while an event is handled.
    void drain();
    void flush();

    /// When the server's time stamp was, in seconds on the monotonic clock. One of another clock is
    /// taken for now.
    double momentOf(xcb_timestamp_t time) const;

    /// Now, on the same clock.
    static double now();

private:
    XServer(xcb_connection_t* connection, const xcb_screen_t& screen);

    bool hasExtensions(std::string& fault);
    void readButtons();
    void watch();
    void handle(xcb_generic_event_t* (*next)(xcb_connection_t*));

    xcb_connection_t* connection_;
    const xcb_screen_t& screen_; ///< the connection's
    std::uint8_t inputOpcode_ = 0;
    std::map<std::string, xcb_atom_t> atoms_;
    std::vector<std::uint8_t> buttons_; ///< what programs see of the device's buttons, from 1
    std::vector<std::function<void(const xcb_generic_event_t&)>> handlers_;
    std::function<void()> ended_;
    bool isHandling_ = false;
    std::unique_ptr<QSocketNotifier> notifier_; ///< null once the server is gone
    QMetaObject::Connection beforeWait_;
};

/// The reply to a request, freed with free(). Null when there was none.
struct FreeDeleter {
    void operator()(void* memory) const { std::free(memory); }
};

template <class T>
using XReply = std::unique_ptr<T, FreeDeleter>;
