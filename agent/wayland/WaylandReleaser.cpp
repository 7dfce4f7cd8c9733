// SPDX-License-Identifier: MIT
#include "agent/wayland/WaylandReleaser.h"

#include "agent/wayland/VirtualHand.h"
#include "wlr-virtual-pointer-unstable-v1.h"

#include <cstring>

namespace {

class WaylandReleaser final : public Releaser {
public:
    WaylandReleaser() {
        static constexpr wl_registry_listener kListener = {
            [](void* self, wl_registry* registry, std::uint32_t name, const char* interface,
               std::uint32_t) {
                const wl_interface& wanted = zwlr_virtual_pointer_manager_v1_interface;
                if (std::strcmp(interface, wanted.name) == 0)
                    static_cast<WaylandReleaser*>(self)->pointers_ =
                        static_cast<zwlr_virtual_pointer_manager_v1*>(
                            wl_registry_bind(registry, name, &wanted, 1));
            },
            [](void*, wl_registry*, std::uint32_t) {}};
        if (!display_)
            return;
        wl_registry_add_listener(wl_display_get_registry(display_), &kListener, this);
        answers();
        if (pointers_)
            pointer_ = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(pointers_, nullptr);
        answers();
    }

    ~WaylandReleaser() override {
        if (display_)
            wl_display_disconnect(display_);
    }

    bool isConnected() const { return display_; }

    void letGo(const std::set<Held>& held) override {
        for (const auto& [isKey, code] : held)
            if (!isKey && pointer_)
                sendButton(pointer_, code, false);
        answers();
    }

    bool answers() override { return wl_display_roundtrip(display_) >= 0; }

private:
    wl_display* display_ = wl_display_connect(nullptr);
    zwlr_virtual_pointer_manager_v1* pointers_ = nullptr;
    /// There from the beginning: when the last pointer of a seat goes, programs are no longer told
    /// of a release.
    zwlr_virtual_pointer_v1* pointer_ = nullptr;
};

} // namespace

std::unique_ptr<Releaser> connectWaylandReleaser() {
    auto releaser = std::make_unique<WaylandReleaser>();
    return releaser->isConnected() ? std::move(releaser) : nullptr;
}
