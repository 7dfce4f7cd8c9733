// SPDX-License-Identifier: MIT
#include "agent/Typing.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

constexpr int kLookMs = 100; ///< between two looks for its window
constexpr int kPatienceMs = static_cast<int>(Typing::kPatience * 1000);

QDBusPendingCall call(const char* method) {
    return QDBusConnection::sessionBus().asyncCall(
        QDBusMessage::createMethodCall(
            QStringLiteral("org.onboard.Onboard"), QStringLiteral("/org/onboard/Onboard/Keyboard"),
            QStringLiteral("org.onboard.Onboard.Keyboard"), QLatin1String(method)),
        kPatienceMs);
}

std::string reasonOf(const QDBusError& error) {
    return error.type() == QDBusError::ServiceUnknown
               ? localized("Agent", "To type on the screen, install Onboard.")
               : localized("Agent", "Onboard, the keyboard on the screen, doesn't start.");
}

} // namespace

Typing::Typing(const Windows& windows, std::function<void()> shown,
               std::function<void(const std::string&)> cantDo)
    : windows_(windows), shown_(std::move(shown)), cantDo_(std::move(cantDo)) {
    look_.setInterval(kLookMs);
    QObject::connect(&look_, &QTimer::timeout, [this] { lookForWindow(); });
}

void Typing::toggle() {
    if (isTyping_)
        end();
    else
        begin();
}

void Typing::begin() {
    isTyping_ = true;
    auto* watcher = new QDBusPendingCallWatcher(call("Show"), &look_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &look_, [this, watcher] {
        watcher->deleteLater();
        if (!isTyping_) // it was ended meanwhile
            return;
        if (const QDBusPendingReply<> reply = *watcher; reply.isError()) {
            isTyping_ = false;
            return cantDo_(reasonOf(reply.error()));
        }
        until_ = monotonicNow() + kPatience;
        look_.start();
    });
}

void Typing::lookForWindow() {
    const bool isThere = keyboard().has_value();
    if (!isThere && monotonicNow() < until_)
        return;
    look_.stop();
    if (isThere)
        return shown_();
    isTyping_ = false;
    cantDo_(reasonOf({}));
}

void Typing::end() {
    if (!isTyping_)
        return;
    isTyping_ = false;
    look_.stop();
    call("Hide");
}

std::optional<Area> Typing::keyboard() const {
    return isTyping_ ? windows_.placeOf("Onboard") : std::nullopt;
}
