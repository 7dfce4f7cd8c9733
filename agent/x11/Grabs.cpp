// SPDX-License-Identifier: MIT
#include "agent/x11/Grabs.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr std::uint32_t kKeyEvents =
    XCB_INPUT_XI_EVENT_MASK_KEY_PRESS | XCB_INPUT_XI_EVENT_MASK_KEY_RELEASE;
constexpr std::uint32_t kButtonEvents =
    XCB_INPUT_XI_EVENT_MASK_BUTTON_PRESS | XCB_INPUT_XI_EVENT_MASK_BUTTON_RELEASE;

std::uint8_t typeOf(const Grab& grab) {
    return grab.isKey ? XCB_INPUT_GRAB_TYPE_KEYCODE : XCB_INPUT_GRAB_TYPE_BUTTON;
}

std::set<Grab> difference(const std::set<Grab>& all, const std::set<Grab>& without) {
    std::set<Grab> rest;
    std::ranges::set_difference(all, without, std::inserter(rest, rest.end()));
    return rest;
}

} // namespace

void Grabs::set(const std::set<Grab>& wanted) {
    for (const Grab& grab : difference(taken_, wanted)) {
        xcb_input_xi_passive_ungrab_device(server_.connection(), server_.root(), grab.code,
                                           grab.device, 1, typeOf(grab), &grab.modifiers);
        taken_.erase(grab);
    }
    take(difference(wanted, taken_));
    server_.flush();
}

/// All are asked for before the first answer is waited for.
void Grabs::take(const std::set<Grab>& missing) {
    xcb_connection_t* connection = server_.connection();
    std::vector<std::pair<Grab, xcb_input_xi_passive_grab_device_cookie_t>> asked;
    for (const Grab& grab : missing) {
        const std::uint32_t events = grab.isKey ? kKeyEvents : kButtonEvents;
        asked.emplace_back(grab, xcb_input_xi_passive_grab_device(
                                     connection, XCB_CURRENT_TIME, server_.root(), XCB_NONE,
                                     grab.code, grab.device, 1, 1, typeOf(grab),
                                     XCB_INPUT_GRAB_MODE_22_ASYNC, XCB_INPUT_GRAB_MODE_22_ASYNC,
                                     XCB_INPUT_GRAB_OWNER_NO_OWNER, &events, &grab.modifiers));
    }
    refused_.clear();
    for (const auto& [grab, cookie] : asked) {
        const XReply<xcb_input_xi_passive_grab_device_reply_t> reply(
            xcb_input_xi_passive_grab_device_reply(connection, cookie, nullptr));
        if (reply) // none when the device has gone
            (reply->num_modifiers == 0 ? taken_ : refused_).insert(grab);
    }
}

void Grabs::forget(xcb_input_device_id_t device) {
    const auto isOfDevice = [device](const Grab& grab) { return grab.device == device; };
    std::erase_if(taken_, isOfDevice);
    std::erase_if(refused_, isOfDevice);
}
