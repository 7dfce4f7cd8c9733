// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/EventTimers.h"

#include <QTimer>

#include <cmath>
#include <ctime>

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
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) / 1e9;
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

OSStatus RemoveEventLoopTimer(EventLoopTimerRef timer) {
    timer->stop();
    timer->deleteLater();
    return noErr;
}
