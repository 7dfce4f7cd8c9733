// SPDX-License-Identifier: MIT
#pragma once

#include <QSocketNotifier>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>
#include <xcb/xcb.h>

/// A connection to the display server of the agent's own, apart from Qt's: presses come in and
/// clicks go out while Qt paints. It reads events as they arrive, and flushes after each turn.
class XServer {
public:
    /// Null with `fault` in words when there is no server, or it lacks XInput 2.2, XTEST or SHAPE.
    static std::unique_ptr<XServer> connect(std::string& fault);
    ~XServer();
    XServer(const XServer&) = delete;
    XServer& operator=(const XServer&) = delete;

    xcb_connection_t* connection() const { return connection_; }

    xcb_window_t root() const { return root_; }

    /// The major code of XInput's requests, as generic events have it.
    std::uint8_t inputOpcode() const { return inputOpcode_; }

    /// An atom, made when there is none; asked for once.
    xcb_atom_t atom(const char* name);

    /// Every event goes to every handler, in the order of their registration. A handler lives as
    /// long as the connection.
    void onEvent(std::function<void(const xcb_generic_event_t&)> handler);

    /// Handles what has arrived. Call it before a frame is drawn, so that a press comes first.
    void drain();
    void flush();

    /// When the server's time stamp was, in seconds on the monotonic clock. One of another clock is
    /// taken for now.
    double momentOf(xcb_timestamp_t time) const;

    /// Now, on the same clock.
    static double now();
};
