// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/EventTimers.h"

#include "platform/Support/EventMoment.h"

#include <QTimer>

#include <cmath>

class CarbonTimer final : public QTimer {};

namespace {

int milliseconds(EventTimerInterval interval) {
    return static_cast<int>(std::lround(interval * 1000));
}

} // namespace

EventLoopRef GetMainEventLoop() {
    return nullptr; // there is no other
}

EventTime GetCurrentEventTime() {
    return monotonicNow();
}

OSStatus InstallEventLoopTimer(EventLoopRef, EventTimerInterval delay, EventTimerInterval interval,
                               EventLoopTimerUPP function, void* userData,
                               EventLoopTimerRef* timer) {
    auto* made = new CarbonTimer;
    made->setSingleShot(interval == 0);
    made->setTimerType(Qt::PreciseTimer);
    QObject::connect(made, &QTimer::timeout, made, [made, function, userData, interval] {
        if (!made->isSingleShot())
            made->setInterval(milliseconds(interval));
        function(made, userData);
    });
    made->start(milliseconds(delay));
    *timer = made;
    return noErr;
}

OSStatus SetEventLoopTimerNextFireTime(EventLoopTimerRef timer, EventTimerInterval delay) {
    timer->start(milliseconds(delay));
    return noErr;
}

OSStatus RemoveEventLoopTimer(EventLoopTimerRef timer) {
    timer->stop();
    timer->deleteLater();
    return noErr;
}
