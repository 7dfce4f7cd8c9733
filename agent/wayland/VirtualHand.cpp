// SPDX-License-Identifier: MIT
#include "agent/wayland/VirtualHand.h"

#include "agent/session/ButtonCodes.h"
#include "virtual-keyboard-unstable-v1.h"
#include "wlr-virtual-pointer-unstable-v1.h"

#include <QRectF>

#include <algorithm>
#include <cmath>
#include <unistd.h>

namespace {

constexpr double kStepsAUnit = 256; ///< of an absolute place
constexpr double kNotch = 15;       ///< units that a notch of a wheel scrolls

/// What all screens lie in.
Area layoutOf(const WaylandDisplay& display) {
    QRectF all;
    for (const WaylandOutput* output : display.outputs())
        all |= QRectF(output->area.left, output->area.top, output->area.width, output->area.height);
    return {all.x(), all.y(), all.width(), all.height()};
}

std::uint32_t steps(double units, double most) {
    return static_cast<std::uint32_t>(std::lround(std::clamp(units, 0.0, most) * kStepsAUnit));
}

} // namespace

VirtualHand::VirtualHand(WaylandDisplay& display, Guard& guard)
    : Hand(guard), display_(display),
      pointer_(zwlr_virtual_pointer_manager_v1_create_virtual_pointer(display.pointers(),
                                                                      display.seat())),
      keyboard_(zwp_virtual_keyboard_manager_v1_create_virtual_keyboard(display.keyboards(),
                                                                        display.seat())) {}

VirtualHand::~VirtualHand() {
    letGo();
    zwp_virtual_keyboard_v1_destroy(keyboard_);
    zwlr_virtual_pointer_v1_destroy(pointer_);
    display_.flush();
}

Place VirtualHand::place() const {
    const auto outputs = display_.outputs();
    return place_ || outputs.empty() ? place_.value_or(Place{}) : outputs.front()->area.middle();
}

void VirtualHand::move(Place place) {
    place_ = place;
    const Area all = layoutOf(display_);
    zwlr_virtual_pointer_v1_motion_absolute(
        pointer_, waylandTime(), steps(place.x - all.left, all.width),
        steps(place.y - all.top, all.height), steps(all.width, all.width),
        steps(all.height, all.height));
    zwlr_virtual_pointer_v1_frame(pointer_);
    display_.flush();
}

void VirtualHand::send(Held what, bool isDown) {
    if (what.isKey)
        sendKey(what.code, isDown);
    else
        sendButton(pointer_, what.code, isDown);
    display_.flush();
}

/// Programs are told of modifiers apart from keys.
void VirtualHand::sendKey(std::uint8_t code, bool isDown) {
    zwp_virtual_keyboard_v1_key(keyboard_, waylandTime(), code, isDown);
    zwp_virtual_keyboard_v1_modifiers(keyboard_, keymap_.modifiersAfter(code, isDown), 0, 0, 0);
}

std::optional<std::uint8_t> VirtualHand::keyFor(const std::string& symbol) {
    if (const auto known = keymap_.find(symbol))
        return known;
    const auto code = keymap_.add(symbol);
    if (!code)
        return std::nullopt;
    const auto [file, size] = keymap_.share();
    if (file < 0)
        return std::nullopt;
    zwp_virtual_keyboard_v1_keymap(keyboard_, WL_KEYBOARD_KEYMAP_FORMAT_XKB_V1, file, size);
    display_.flush(); // the file goes with it
    close(file);
    return code;
}

void sendButton(zwlr_virtual_pointer_v1* pointer, std::uint8_t button, bool isDown) {
    if (const auto code = kernelButton(button)) {
        zwlr_virtual_pointer_v1_button(pointer, waylandTime(), static_cast<std::uint32_t>(*code),
                                       isDown);
    } else if (const auto turn = wheelTurn(button); turn && isDown) {
        zwlr_virtual_pointer_v1_axis_source(pointer, WL_POINTER_AXIS_SOURCE_WHEEL);
        zwlr_virtual_pointer_v1_axis_discrete(
            pointer, waylandTime(),
            turn->isAcross ? WL_POINTER_AXIS_HORIZONTAL_SCROLL : WL_POINTER_AXIS_VERTICAL_SCROLL,
            wl_fixed_from_double(turn->notches * kNotch), turn->notches);
    }
    zwlr_virtual_pointer_v1_frame(pointer);
}
