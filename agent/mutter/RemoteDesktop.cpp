// SPDX-License-Identifier: MIT
#include "agent/mutter/RemoteDesktop.h"

#include <QDBusArgument>
#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <algorithm>
#include <xkbcommon/xkbcommon-keysyms.h>

namespace {

constexpr int kPatienceMs = 1000;

constexpr char kControl[] = "org.gnome.Mutter.RemoteDesktop";
constexpr char kControlPath[] = "/org/gnome/Mutter/RemoteDesktop";
constexpr char kControlSession[] = "org.gnome.Mutter.RemoteDesktop.Session";
constexpr char kRecording[] = "org.gnome.Mutter.ScreenCast";
constexpr char kRecordingPath[] = "/org/gnome/Mutter/ScreenCast";
constexpr char kDisplays[] = "org.gnome.Mutter.DisplayConfig";
constexpr char kDisplaysPath[] = "/org/gnome/Mutter/DisplayConfig";

QDBusMessage callOf(const char* service, const QString& path, const QString& interface,
                    const char* method, const QVariantList& arguments = {}) {
    auto call = QDBusMessage::createMethodCall(QLatin1String(service), path, interface,
                                               QLatin1String(method));
    call.setArguments(arguments);
    call.setAutoStartService(false);
    return call;
}

/// The answer's arguments. Empty when there is none.
QVariantList ask(const QDBusMessage& call) {
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, kPatienceMs);
    return reply.type() == QDBusMessage::ReplyMessage ? reply.arguments() : QVariantList();
}

/// The path in an answer. Empty without one.
QString pathIn(const QVariantList& answer) {
    return answer.value(0).value<QDBusObjectPath>().path();
}

} // namespace

RemoteDesktop::RemoteDesktop() {
    QDBusConnection::sessionBus().connect(QLatin1String(kDisplays), QLatin1String(kDisplaysPath),
                                          QLatin1String(kDisplays),
                                          QStringLiteral("MonitorsChanged"), this, SLOT(close()));
}

bool RemoteDesktop::isOffered() {
    return QDBusConnection::sessionBus().interface()->isServiceRegistered(QLatin1String(kControl));
}

bool RemoteDesktop::open() {
    if (!session_.isEmpty())
        return true;
    session_ = pathIn(ask(
        callOf(kControl, QLatin1String(kControlPath), QLatin1String(kControl), "CreateSession")));
    if (session_.isEmpty())
        return false;
    const auto bus = QDBusConnection::sessionBus();
    const QString interface = QLatin1String(kControlSession);
    if (!readScreens() || !record() ||
        bus.call(callOf(kControl, session_, interface, "Start"), QDBus::Block, kPatienceMs)
                .type() != QDBusMessage::ReplyMessage) {
        close();
        return false;
    }
    QDBusConnection::sessionBus().connect(QLatin1String(kControl), session_, interface,
                                          QStringLiteral("Closed"), this, SLOT(close()));
    // Both devices are there from now on: where the user has none, programs would miss what they do
    // first.
    notify("NotifyPointerMotionRelative", {0.0, 0.0});
    for (const bool isDown : {true, false})
        key(XKB_KEY_Shift_L, isDown);
    return true;
}

/// The session's end, or its screens are others now: the next move opens it anew.
void RemoteDesktop::close() {
    if (session_.isEmpty())
        return;
    notify("Stop", {});
    session_.clear();
}

/// Its answer is (serial, monitors, screens, properties). A screen is (x, y, scale, transform,
/// whether it is the first, monitors, properties); a monitor is (connector, vendor, product,
/// serial).
bool RemoteDesktop::readScreens() {
    screens_.clear();
    const auto state = ask(callOf(kDisplays, QLatin1String(kDisplaysPath), QLatin1String(kDisplays),
                                  "GetCurrentState"));
    if (state.size() < 3)
        return false;
    const auto all = state[2].value<QDBusArgument>();
    for (all.beginArray(); !all.atEnd();) {
        int x = 0, y = 0;
        double scale = 0;
        uint transform = 0;
        bool isFirst = false;
        QString connector, other;
        QVariantMap properties;
        all.beginStructure();
        all >> x >> y >> scale >> transform >> isFirst;
        for (all.beginArray(); !all.atEnd(); all.endStructure()) {
            all.beginStructure();
            all >> connector >> other >> other >> other;
        }
        all.endArray();
        all >> properties;
        all.endStructure();
        screens_.insert(isFirst ? screens_.begin() : screens_.end(), {{x, y}, connector, {}});
    }
    return !screens_.empty();
}

bool RemoteDesktop::record() {
    const auto id =
        ask(callOf(kControl, session_, QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                   {QLatin1String(kControlSession), QStringLiteral("SessionId")}));
    if (id.isEmpty())
        return false;
    const QVariantMap forSession = {
        {QStringLiteral("remote-desktop-session-id"), id[0].value<QDBusVariant>().variant()}};
    const QString recording =
        pathIn(ask(callOf(kRecording, QLatin1String(kRecordingPath), QLatin1String(kRecording),
                          "CreateSession", {forSession})));
    const QString interface = QStringLiteral("org.gnome.Mutter.ScreenCast.Session");
    for (Screen& screen : screens_)
        screen.stream = pathIn(ask(callOf(kRecording, recording, interface, "RecordMonitor",
                                          {screen.connector, QVariantMap()})));
    return std::ranges::none_of(screens_, &QString::isEmpty, &Screen::stream);
}

void RemoteDesktop::notify(const char* method, const QVariantList& arguments) {
    if (!session_.isEmpty())
        QDBusConnection::sessionBus().send(
            callOf(kControl, session_, QLatin1String(kControlSession), method, arguments));
}

void RemoteDesktop::whenIdle(std::function<void()> then) {
    auto* const answer = new QDBusPendingCallWatcher(
        QDBusConnection::sessionBus().asyncCall(
            callOf(kControl, QLatin1String(kControlPath),
                   QStringLiteral("org.freedesktop.DBus.Properties"), "Get",
                   {QLatin1String(kControl), QStringLiteral("Version")}),
            kPatienceMs),
        this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [answer, then = std::move(then)] {
        answer->deleteLater();
        then();
    });
}

void RemoteDesktop::move(QPoint screen, double x, double y) {
    if (!open())
        return;
    const auto found = std::ranges::find(screens_, screen, &Screen::corner);
    notify("NotifyPointerMotionAbsolute",
           {(found == screens_.end() ? screens_.front() : *found).stream, x, y});
}

void RemoteDesktop::button(std::int32_t button, bool isDown) {
    notify("NotifyPointerButton", {button, isDown});
}

void RemoteDesktop::scroll(bool isAcross, std::int32_t notches) {
    notify("NotifyPointerAxisDiscrete", {uint{isAcross}, notches});
}

void RemoteDesktop::key(std::uint32_t symbol, bool isDown) {
    notify("NotifyKeyboardKeysym", {symbol, isDown});
}
