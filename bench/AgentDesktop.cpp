// SPDX-License-Identifier: MIT
#include "bench/AgentDesktop.h"

#include "agent/session/Guard.h"
#include "agent/x11/XServer.h"
#include "src/store/prefs.h"

#include <cmath>
#include <ctime>
#include <poll.h>

namespace {

constexpr int kEscape = 9;
constexpr int kLongestStart = 10'000; ///< ms
constexpr double kLongestWait = 2;    ///< seconds, for a button
constexpr double kPressLength = 0.02; ///< seconds
constexpr double kHearing = 0.05;     ///< seconds; a key that nobody took has arrived

const QString kAgent =
    QStringLiteral(KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app/Contents/Linux/korvex-agent");

void wait(double seconds) {
    sleepUntil(XServer::now() + seconds);
}

} // namespace

void sleepUntil(double moment) {
    timespec time{};
    time.tv_sec = static_cast<std::time_t>(moment);
    time.tv_nsec = static_cast<long>((moment - std::floor(moment)) * 1e9);
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &time, nullptr) == EINTR)
        ;
}

PrefsRecord scanKeyRecord() {
    PrefsRecord record;
    record.playClickSounds = 0;
    record.wantMouseClickTrigger = 0;
    record.useScanAcceleration = 0;
    record.hotKeys[1] = {0x00, 0}; // A
    return record;
}

AgentDesktop::AgentDesktop(int width, int height)
    : server_(width, height), target_(0, 0, width, height),
      environment_(QProcessEnvironment::systemEnvironment()) {
    bus_.start(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--session"), QStringLiteral("--nofork"),
                QStringLiteral("--print-address")});
    bus_.waitForReadyRead(kLongestStart);
    environment_.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"),
                        QString::fromLatin1(bus_.readLine().trimmed()));
    environment_.remove(QStringLiteral("QT_QPA_GENERIC_PLUGINS")); // of other figures
}

AgentDesktop::~AgentDesktop() {
    killAgent();
    bus_.kill();
    bus_.waitForFinished();
}

void AgentDesktop::start(QProcess& program, const QString& path,
                         const QStringList& arguments) const {
    program.setProcessEnvironment(environment_);
    program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    program.start(path, arguments);
    program.waitForStarted(kLongestStart);
}

bool AgentDesktop::startAgent(const PrefsRecord& record) {
    killAgent();
    prefs = record;
    if (!savePrefs())
        return false;
    start(agent_, kAgent, {QString::number(Guard::kMostRestarts)}); // killed, it stays away
    const double began = XServer::now();
    while (!hasKey())
        if (agent_.state() != QProcess::Running || XServer::now() - began > kLongestStart / 1000.0)
            return false;
    return true;
}

void AgentDesktop::killAgent() {
    agent_.kill();
    agent_.waitForFinished();
}

/// A key that the window doesn't hear is taken. The scan that it began ends.
bool AgentDesktop::hasKey() {
    target_.events();
    press();
    wait(kHearing);
    const bool isTaken = target_.events().empty();
    press(kEscape);
    wait(kHearing);
    return isTaken;
}

AgentDesktop::Span AgentDesktop::key(int code, bool isDown) {
    const double from = XServer::now();
    keyboard_.key(code, isDown);
    return {from, XServer::now()};
}

AgentDesktop::Span AgentDesktop::press(int code) {
    const Span down = key(code, true);
    wait(kPressLength);
    key(code, false);
    return down;
}

std::optional<AgentDesktop::Told> AgentDesktop::next(std::uint8_t type) {
    const double end = XServer::now() + kLongestWait;
    for (double now = 0; (now = XServer::now()) < end;) {
        const XReply<xcb_generic_event_t> event(xcb_poll_for_event(target_.connection()));
        if (!event) {
            pollfd file = {xcb_get_file_descriptor(target_.connection()), POLLIN, 0};
            poll(&file, 1, static_cast<int>((end - now) * 1000));
            continue;
        }
        const auto& button = reinterpret_cast<const xcb_button_press_event_t&>(*event);
        if ((event->response_type & 0x7F) == type)
            return Told{now, button.root_x, button.root_y};
    }
    return {};
}
