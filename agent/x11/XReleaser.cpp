// SPDX-License-Identifier: MIT
#include "agent/x11/XReleaser.h"

#include <cstdlib>
#include <xcb/xtest.h>

namespace {

class XReleaser final : public Releaser {
public:
    ~XReleaser() override { xcb_disconnect(server_); }

    bool canRelease() const {
        const auto* test = xcb_get_extension_data(server_, &xcb_test_id);
        return test && test->present;
    }

    void letGo(const std::set<Held>& held) override {
        for (const auto& [isKey, code] : held)
            xcb_test_fake_input(server_, isKey ? XCB_KEY_RELEASE : XCB_BUTTON_RELEASE, code,
                                XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        answers();
    }

    bool answers() override {
        auto* answer = xcb_get_input_focus_reply(server_, xcb_get_input_focus(server_), nullptr);
        std::free(answer);
        return answer != nullptr;
    }

private:
    xcb_connection_t* server_ = xcb_connect(nullptr, nullptr);
};

} // namespace

std::unique_ptr<Releaser> connectXReleaser() {
    auto releaser = std::make_unique<XReleaser>();
    return releaser->canRelease() ? std::move(releaser) : nullptr;
}
