// SPDX-License-Identifier: MIT
#include "platform/Accessibility/AXUIElement.h"

#include "platform/CoreServices/detail/SessionBus.h"

#include <QCoreApplication>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QPointer>
#include <QTimer>

namespace {

const QString kService = QStringLiteral("org.a11y.Bus");
const QString kObject = QStringLiteral("/org/a11y/bus");
const QString kStatus = QStringLiteral("org.a11y.Status");
const QString kEnabled = QStringLiteral("IsEnabled");
const QString kProperties = QStringLiteral("org.freedesktop.DBus.Properties");

constexpr int kPatience = 100; ///< milliseconds to wait for the first answer

QDBusMessage statusQuestion(bool startsService) {
    auto question =
        QDBusMessage::createMethodCall(kService, kObject, kProperties, QStringLiteral("Get"));
    question.setAutoStartService(startsService);
    question.setArguments({kStatus, kEnabled});
    return question;
}

/// The switch as the service last told it.
class AccessibilitySwitch final : public QObject {
public:
    explicit AccessibilitySwitch(QObject* parent);

    bool isOn() const { return isOn_; }

    bool isKnown() const { return isKnown_; }

    void switchOn(std::function<void()> failed);

    std::function<void()> listener;

private:
    void askFirst();
    void ask();
    void take(const QDBusMessage& reply);

    QDBusServiceWatcher service_;
    QTimer changed_; ///< fires once for all that was announced meanwhile
    bool isOn_ = false;
    bool isKnown_ = false;
};

AccessibilitySwitch::AccessibilitySwitch(QObject* parent) : QObject(parent) {
    changed_.setSingleShot(true);
    connect(&changed_, &QTimer::timeout, this, [this] { ask(); });
    QDBusConnection bus = sessionBus();
    bus.connect(QString(), kObject, kProperties, QStringLiteral("PropertiesChanged"), &changed_,
                SLOT(start()));
    service_.setConnection(bus);
    service_.addWatchedService(kService);
    connect(&service_, &QDBusServiceWatcher::serviceOwnerChanged, &changed_,
            qOverload<>(&QTimer::start));
    askFirst();
}

void AccessibilitySwitch::askFirst() {
    const QDBusMessage reply = sessionBus().call(statusQuestion(true), QDBus::Block, kPatience);
    if (QDBusError(reply).type() == QDBusError::NoReply)
        ask(); // it is still starting, or may wake up
    else
        take(reply);
}

void AccessibilitySwitch::ask() {
    const auto question = statusQuestion(!isKnown_);
    auto* answer = new QDBusPendingCallWatcher(sessionBus().asyncCall(question), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        take(answer->reply());
        answer->deleteLater();
    });
}

void AccessibilitySwitch::switchOn(std::function<void()> failed) {
    auto wish =
        QDBusMessage::createMethodCall(kService, kObject, kProperties, QStringLiteral("Set"));
    wish.setArguments({kStatus, kEnabled, QVariant::fromValue(QDBusVariant(true))});
    auto* answer = new QDBusPendingCallWatcher(sessionBus().asyncCall(wish), this);
    connect(answer, &QDBusPendingCallWatcher::finished, this,
            [this, answer, failed = std::move(failed)] {
                answer->isError() ? failed() : ask();
                answer->deleteLater();
            });
}

void AccessibilitySwitch::take(const QDBusMessage& reply) {
    isOn_ = QDBusPendingReply<QDBusVariant>(reply).value().variant().toBool();
    isKnown_ = true;
    if (listener)
        listener();
}

AccessibilitySwitch& theSwitch() {
    static QPointer<AccessibilitySwitch> only;
    if (!only)
        only = new AccessibilitySwitch(QCoreApplication::instance());
    return *only;
}

} // namespace

bool AXAPIEnabled() {
    return theSwitch().isOn();
}

bool isAXAPIEnabledKnown() {
    return theSwitch().isKnown();
}

void enableAXAPI(std::function<void()> failed) {
    theSwitch().switchOn(std::move(failed));
}

void setAXAPIEnabledListener(std::function<void()> listener) {
    theSwitch().listener = std::move(listener);
}
