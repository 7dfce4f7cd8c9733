// SPDX-License-Identifier: MIT
#include "agent/Typing.h"

#include "platform/CoreFoundation/Localization.h"
#include "platform/Support/EventMoment.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace {

constexpr int kLookMs = 100;     ///< between two looks for its window
constexpr int kStartMs = 20'000; ///< that a keyboard may take to start

} // namespace

Typing::Typing(const OnScreenKeyboard& keyboard, const Windows& windows,
               std::function<void()> shown, std::function<void(const std::string&)> cantDo)
    : keyboard_(keyboard), windows_(windows), shown_(std::move(shown)), cantDo_(std::move(cantDo)) {
    look_.setInterval(kLookMs);
    QObject::connect(&look_, &QTimer::timeout, [this] { lookForWindow(); });
}

QDBusPendingCall Typing::call(bool isShown) const {
    auto call = QDBusMessage::createMethodCall(
        QLatin1String(keyboard_.service), QLatin1String(keyboard_.path),
        QLatin1String(keyboard_.interface),
        QLatin1String(isShown ? keyboard_.show : keyboard_.hide));
    if (keyboard_.isToggled)
        call << isShown;
    return QDBusConnection::sessionBus().asyncCall(call, kStartMs);
}

std::string Typing::reasonOf(const QDBusError& error) const {
    return localized("Agent", error.type() == QDBusError::ServiceUnknown ? keyboard_.missing
                                                                         : keyboard_.broken);
}

void Typing::toggle() {
    if (isTyping_)
        end();
    else
        begin();
}

void Typing::begin() {
    isTyping_ = true;
    auto* watcher = new QDBusPendingCallWatcher(call(true), &look_);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, &look_, [this, watcher] {
        watcher->deleteLater();
        if (!isTyping_) // it was ended meanwhile
            return;
        if (const QDBusPendingReply<> reply = *watcher; reply.isError()) {
            isTyping_ = false;
            return cantDo_(reasonOf(reply.error()));
        }
        until_ = monotonicNow() + keyboard_.patience;
        look_.start();
    });
}

void Typing::lookForWindow() {
    const bool isThere = keyboard().has_value();
    if (!isThere && monotonicNow() < until_)
        return;
    look_.stop();
    if (isThere || !keyboard_.needsPlace)
        return shown_();
    isTyping_ = false;
    cantDo_(reasonOf({}));
}

void Typing::end() {
    if (!isTyping_)
        return;
    isTyping_ = false;
    look_.stop();
    call(false);
}

std::optional<Area> Typing::keyboard() const {
    return isTyping_ ? windows_.placeOf(keyboard_.program) : std::nullopt;
}
