// SPDX-License-Identifier: MIT
#include "agent/x11/InputDevices.h"

#include <string_view>

namespace {

using Info = xcb_input_xi_device_info_t;

std::string_view nameOf(const Info* info) {
    return {xcb_input_xi_device_info_name(info),
            static_cast<std::size_t>(xcb_input_xi_device_info_name_length(info))};
}

/// A floating device is one that somebody detached from the pointer, perhaps to be a switch alone.
bool isPhysical(const Info* info) {
    return info->enabled && info->type >= XCB_INPUT_DEVICE_TYPE_SLAVE_POINTER &&
           nameOf(info).find("XTEST") == std::string_view::npos;
}

void add(InputDevice& device, const xcb_input_device_class_t* one, bool& isTouchScreen) {
    switch (one->type) {
    case XCB_INPUT_DEVICE_CLASS_TYPE_KEY:
        device.hasKeys = true;
        break;
    case XCB_INPUT_DEVICE_CLASS_TYPE_BUTTON:
        device.hasButtons = true;
        break;
    case XCB_INPUT_DEVICE_CLASS_TYPE_VALUATOR: {
        const auto* valuator = reinterpret_cast<const xcb_input_valuator_class_t*>(one);
        if (valuator->number < 2)
            device.axes[valuator->number] = {valuator->mode == XCB_INPUT_VALUATOR_MODE_ABSOLUTE,
                                             number(valuator->min), number(valuator->max)};
        break;
    }
    case XCB_INPUT_DEVICE_CLASS_TYPE_TOUCH:
        isTouchScreen = reinterpret_cast<const xcb_input_touch_class_t*>(one)->mode ==
                        XCB_INPUT_TOUCH_MODE_DIRECT;
        break;
    default:
        break;
    }
}

} // namespace

double number(xcb_input_fp3232_t value) {
    return value.integral + value.frac / 4294967296.0;
}

std::vector<InputDevice> inputDevices(XServer& server) {
    std::vector<InputDevice> devices;
    const auto cookie = xcb_input_xi_query_device(server.connection(), XCB_INPUT_DEVICE_ALL);
    const XReply<xcb_input_xi_query_device_reply_t> reply(
        xcb_input_xi_query_device_reply(server.connection(), cookie, nullptr));
    if (!reply)
        return devices;
    for (auto info = xcb_input_xi_query_device_infos_iterator(reply.get()); info.rem > 0;
         xcb_input_xi_device_info_next(&info)) {
        if (!isPhysical(info.data))
            continue;
        InputDevice device;
        device.id = info.data->deviceid;
        bool isTouchScreen = false;
        for (auto one = xcb_input_xi_device_info_classes_iterator(info.data); one.rem > 0;
             xcb_input_device_class_next(&one))
            add(device, one.data, isTouchScreen);
        if (!isTouchScreen)
            devices.push_back(device);
    }
    return devices;
}
