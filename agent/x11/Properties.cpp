// SPDX-License-Identifier: MIT
#include "agent/x11/Properties.h"

namespace {

constexpr std::uint32_t kMostNumbers = 4096;

template <typename Element>
std::vector<Element> valueOf(XServer& server, xcb_get_property_cookie_t asked) {
    const XReply<xcb_get_property_reply_t> reply(
        xcb_get_property_reply(server.connection(), asked, nullptr));
    if (!reply || reply->format != 8 * sizeof(Element))
        return {};
    const auto* first = static_cast<const Element*>(xcb_get_property_value(reply.get()));
    return {first, first + reply->value_len};
}

} // namespace

xcb_get_property_cookie_t askProperty(XServer& server, xcb_window_t window, const char* name) {
    return xcb_get_property(server.connection(), 0, window, server.atom(name),
                            XCB_GET_PROPERTY_TYPE_ANY, 0, kMostNumbers);
}

std::vector<std::uint32_t> numbersOf(XServer& server, xcb_get_property_cookie_t asked) {
    return valueOf<std::uint32_t>(server, asked);
}

std::string bytesOf(XServer& server, xcb_get_property_cookie_t asked) {
    const auto bytes = valueOf<char>(server, asked);
    return {bytes.begin(), bytes.end()};
}
