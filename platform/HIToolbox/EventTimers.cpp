#include "platform/HIToolbox/EventTimers.h"

#include <QTimer>

#include <cmath>

class CarbonTimer final : public QTimer {};

EventLoopRef GetMainEventLoop() {
    return nullptr; // there is no other
}

OSStatus InstallEventLoopTimer(EventLoopRef, EventTimerInterval delay, EventTimerInterval,
                               EventLoopTimerUPP function, void* userData,
                               EventLoopTimerRef* timer) {
    auto* made = new CarbonTimer;
    made->setSingleShot(true);
    made->setTimerType(Qt::PreciseTimer);
    QObject::connect(made, &QTimer::timeout, made,
                     [made, function, userData] { function(made, userData); });
    made->start(static_cast<int>(std::lround(delay * 1000)));
    *timer = made;
    return noErr;
}

OSStatus RemoveEventLoopTimer(EventLoopTimerRef timer) {
    timer->stop();
    timer->deleteLater();
    return noErr;
}
