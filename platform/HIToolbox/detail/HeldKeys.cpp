// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/HeldKeys.h"

#include "platform/HIToolbox/EventTimers.h"
#include "platform/HIToolbox/detail/KeysDown.h"
#include "platform/Support/EventMoment.h"

#include <QKeyEvent>

#include <limits>

namespace {

/// The time of a press from before the counting began.
constexpr quint64 kBefore = std::numeric_limits<quint64>::max();

} // namespace

void HeldKeys::reset() {
    since_.clear();
    resetAt_ = GetCurrentEventTime();
    const auto down = keysDown();
    for (quint32 key = 0; key < kKeyCount; ++key)
        if (down[key])
            since_[key] = kBefore;
}

bool HeldKeys::isRepeat(const QKeyEvent& press) {
    // Assistive technology may look at a press first. Then copies of it come without a time, some
    // without a key.
    if (press.timestamp() == 0)
        return press.isAutoRepeat();
    const auto [key, isNew] = since_.try_emplace(press.nativeScanCode(), press.timestamp());
    const bool wasUnderWay = key->second == kBefore && momentOf(press.timestamp()) <= resetAt_;
    if (wasUnderWay)
        key->second = press.timestamp();
    return press.isAutoRepeat() || (!isNew && key->second != press.timestamp());
}

bool HeldKeys::isUp(const QKeyEvent& release) {
    const quint32 key = release.nativeScanCode();
    if (release.isAutoRepeat() || isKeyDown(key))
        return false;
    since_.erase(key);
    return true;
}
