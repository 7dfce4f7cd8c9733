// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/detail/HeldKeys.h"

#include "platform/HIToolbox/EventTimers.h"
#include "platform/HIToolbox/detail/KeysDown.h"
#include "platform/Support/EventMoment.h"

#include <QKeyEvent>

namespace {

constexpr quint64 kBefore = 0; ///< the time of a press from before the counting began

} // namespace

void HeldKeys::reset() {
    keys_.clear();
    resetAt_ = GetCurrentEventTime();
    const auto down = keysDown();
    for (quint32 key = 0; key < kKeyCount; ++key)
        if (down[key])
            keys_[key] = {kBefore};
}

bool HeldKeys::isRepeat(const QKeyEvent& press) {
    if (wouldRepeat(press))
        return true;
    Key& key = keys_[press.nativeScanCode()];
    if (press.timestamp() >= key.pressed)
        key = {press.timestamp()};
    return false;
}

bool HeldKeys::wouldRepeat(const QKeyEvent& press) const {
    const auto key = keys_.find(press.nativeScanCode());
    if (press.isAutoRepeat() || key == keys_.end() || !key->second.isDown)
        return press.isAutoRepeat();
    const quint64 pressed = key->second.pressed;
    const bool wasUnderWay = pressed == kBefore && momentOf(press.timestamp()) <= resetAt_;
    return press.timestamp() > pressed && !wasUnderWay;
}

bool HeldKeys::ends(const QKeyEvent& release) {
    const auto key = keys_.find(release.nativeScanCode());
    const bool isEnd = key != keys_.end() && key->second.isDown && !release.isAutoRepeat() &&
                       release.timestamp() >= key->second.pressed;
    if (isEnd)
        key->second.isDown = false;
    return isEnd;
}
