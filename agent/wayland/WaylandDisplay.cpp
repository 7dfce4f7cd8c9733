// SPDX-License-Identifier: MIT
#include "agent/wayland/WaylandDisplay.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"
#include "virtual-keyboard-unstable-v1.h"
#include "wlr-foreign-toplevel-management-unstable-v1.h"
#include "wlr-layer-shell-unstable-v1.h"
#include "wlr-virtual-pointer-unstable-v1.h"
#include "xdg-output-unstable-v1.h"

#include <QAbstractEventDispatcher>

#include <algorithm>
#include <csignal>
#include <cstring>

namespace {

/// The newest versions of what is bound that the agent knows.
constexpr std::uint32_t kCompositorVersion = 4, kSeatVersion = 5, kOutputVersion = 2;
constexpr std::uint32_t kToplevelVersion = 3, kPlacesVersion = 2;

template <class T>
T* bindTo(wl_registry* registry, std::uint32_t name, const wl_interface& interface,
          std::uint32_t offered, std::uint32_t known) {
    return static_cast<T*>(wl_registry_bind(registry, name, &interface, std::min(offered, known)));
}

} // namespace

std::uint32_t waylandTime() {
    return static_cast<std::uint32_t>(monotonicNow() * 1000);
}

std::unique_ptr<WaylandDisplay> WaylandDisplay::connect(std::string& fault) {
    std::signal(SIGPIPE, SIG_IGN);
    wl_display* const connection = wl_display_connect(nullptr);
    if (!connection) {
        fault = localized("Agent", "The Wayland session can't be reached.");
        return nullptr;
    }
    std::unique_ptr<WaylandDisplay> display(new WaylandDisplay(connection));
    static constexpr wl_registry_listener kListener = {
        [](void* self, wl_registry* registry, std::uint32_t name, const char* interface,
           std::uint32_t version) {
            static_cast<WaylandDisplay*>(self)->bind(registry, name, interface, version);
        },
        [](void* self, wl_registry*, std::uint32_t name) {
            static_cast<WaylandDisplay*>(self)->remove(name);
        }};
    display->registry_ = wl_display_get_registry(connection);
    wl_registry_add_listener(display->registry_, &kListener, display.get());
    wl_display_roundtrip(connection); // what there is
    if (const std::string missing = display->missing(); !missing.empty()) {
        fault = filled(localized("Agent", "Korvex can't scan in this Wayland session: it has no "
                                          "%1. Log out, and choose a session with X11 where you "
                                          "log in."),
                       {missing});
        return nullptr;
    }
    for (const auto& output : display->outputs_)
        display->describe(*output);
    wl_display_roundtrip(connection); // and where
    display->watch();
    return display;
}

WaylandDisplay::~WaylandDisplay() {
    QObject::disconnect(beforeWait_);
    notifier_.reset();
    wl_display_disconnect(display_);
}

void WaylandDisplay::bind(wl_registry* registry, std::uint32_t name, const char* interface,
                          std::uint32_t version) {
    const auto take = [&](auto& member, const wl_interface& known, std::uint32_t knownVersion) {
        if (!member && std::strcmp(interface, known.name) == 0)
            member = bindTo<std::remove_pointer_t<std::decay_t<decltype(member)>>>(
                registry, name, known, version, knownVersion);
    };
    take(compositor_, wl_compositor_interface, kCompositorVersion);
    take(memory_, wl_shm_interface, 1);
    take(seat_, wl_seat_interface, kSeatVersion);
    take(layers_, zwlr_layer_shell_v1_interface, 1);
    take(pointers_, zwlr_virtual_pointer_manager_v1_interface, 1);
    take(keyboards_, zwp_virtual_keyboard_manager_v1_interface, 1);
    take(windows_, zwlr_foreign_toplevel_manager_v1_interface, kToplevelVersion);
    take(places_, zxdg_output_manager_v1_interface, kPlacesVersion);
    if (std::strcmp(interface, wl_output_interface.name) == 0)
        addOutput(registry, name, version);
}

std::string WaylandDisplay::missing() const {
    const std::pair<const void*, const char*> needed[] = {
        {compositor_, "wl_compositor"},
        {memory_, "wl_shm"},
        {seat_, "wl_seat"},
        {layers_, "zwlr_layer_shell_v1"},
        {pointers_, "zwlr_virtual_pointer_manager_v1"},
        {keyboards_, "zwp_virtual_keyboard_manager_v1"},
        {places_, "zxdg_output_manager_v1"},
    };
    const auto* const found =
        std::ranges::find_if(needed, [](const auto& each) { return !each.first; });
    return found == std::end(needed) ? "" : found->second;
}

// Screens ----------------------------------------------------------------------------------------

void WaylandDisplay::addOutput(wl_registry* registry, std::uint32_t name, std::uint32_t version) {
    auto* const output =
        bindTo<wl_output>(registry, name, wl_output_interface, version, kOutputVersion);
    outputs_.push_back(
        std::make_unique<WaylandOutput>(WaylandOutput{this, name, output, nullptr, {}}));
    if (notifier_) // it came later
        describe(*outputs_.back());
}

/// Asks for its place. Every change ends with `done`.
void WaylandDisplay::describe(WaylandOutput& output) {
    static constexpr zxdg_output_v1_listener kPlaces = {
        [](void* data, zxdg_output_v1*, std::int32_t x, std::int32_t y) {
            auto& area = static_cast<WaylandOutput*>(data)->area;
            area.left = x, area.top = y;
        },
        [](void* data, zxdg_output_v1*, std::int32_t width, std::int32_t height) {
            auto& area = static_cast<WaylandOutput*>(data)->area;
            area.width = width, area.height = height;
        },
        [](void*, zxdg_output_v1*) {}, [](void*, zxdg_output_v1*, const char*) {},
        [](void*, zxdg_output_v1*, const char*) {}};
    output.places = zxdg_output_manager_v1_get_xdg_output(places_, output.output);
    zxdg_output_v1_add_listener(output.places, &kPlaces, &output);
}

void WaylandDisplay::remove(std::uint32_t name) {
    const auto gone = std::ranges::find(outputs_, name, &WaylandOutput::name);
    if (gone == outputs_.end())
        return;
    const auto kept = std::move(*gone); // until nobody draws on it any more
    outputs_.erase(gone);
    tell();
    if (kept->places)
        zxdg_output_v1_destroy(kept->places);
    wl_output_destroy(kept->output);
}

void WaylandDisplay::tell() const {
    for (const auto& changed : outputsChanged_)
        changed();
}

std::vector<const WaylandOutput*> WaylandDisplay::outputs() const {
    std::vector<const WaylandOutput*> placed;
    for (const auto& output : outputs_)
        if (!output->area.isEmpty())
            placed.push_back(output.get());
    return placed;
}

// Events -----------------------------------------------------------------------------------------

void WaylandDisplay::watch() {
    notifier_ =
        std::make_unique<QSocketNotifier>(wl_display_get_fd(display_), QSocketNotifier::Read);
    QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this] { drain(); });
    beforeWait_ = QObject::connect(QAbstractEventDispatcher::instance(),
                                   &QAbstractEventDispatcher::aboutToBlock, [this] { flush(); });
}

void WaylandDisplay::drain() {
    if (isHandling_ || !notifier_)
        return;
    isHandling_ = true;
    while (wl_display_prepare_read(display_) != 0)
        wl_display_dispatch_pending(display_);
    wl_display_read_events(display_); // the socket doesn't block
    wl_display_dispatch_pending(display_);
    isHandling_ = false;
    flush();
}

void WaylandDisplay::flush() {
    wl_display_flush(display_);
    lookForEnd();
}

void WaylandDisplay::lookForEnd() {
    if (!notifier_ || wl_display_get_error(display_) == 0)
        return;
    notifier_->setEnabled(false);
    notifier_.release()->deleteLater(); // it may be the one that called
    if (ended_)
        ended_();
}
