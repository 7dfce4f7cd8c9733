// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/KeyMoments.h"

#include "platform/Support/EventMoment.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>
#include <QKeyEvent>

#include <array>
#include <xcb/xcb.h>

namespace {

constexpr std::uint8_t kSentByPrograms = 0x80; ///< a bit in the event's kind

/// By X11 key code, in the server's milliseconds. 0: none seen.
struct Moments {
    std::array<std::uint32_t, 256> down{}, up{};
};

Moments moments;

class Filter final : public QAbstractNativeEventFilter {
public:
    bool nativeEventFilter(const QByteArray& kind, void* message, qintptr*) override {
        if (kind != "xcb_generic_event_t")
            return false;
        const auto* event = static_cast<const xcb_key_press_event_t*>(message);
        const int type = event->response_type & ~kSentByPrograms;
        if (type == XCB_KEY_PRESS)
            moments.down[event->detail] = event->time;
        else if (type == XCB_KEY_RELEASE)
            moments.up[event->detail] = event->time;
        return false;
    }
};

} // namespace

void noteKeyMoments() {
    [[maybe_unused]] static const bool isNoted = [] {
        static Filter filter;
        qApp->installNativeEventFilter(&filter);
        return true;
    }();
}

double momentOf(const QKeyEvent& event) {
    const quint32 key = event.nativeScanCode();
    const auto& noted = event.type() == QEvent::KeyRelease ? moments.up : moments.down;
    return momentOf(event.timestamp() == 0 && key < noted.size() ? noted[key] : event.timestamp());
}
