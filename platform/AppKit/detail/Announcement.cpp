// SPDX-License-Identifier: MIT
#include "platform/AppKit/NSAccessibility.h"
#include "platform/AppKit/NSView.h"

#include <QAccessible>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QWidget>

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)

/// Qt announces from 6.8 on. Before, the signal goes out beside Qt's own, on the connection that it
/// keeps to assistive technology and in the name that it gives the widget there.
void announce(QWidget* widget, const QString& text) {
    QAccessibleInterface* speaker = QAccessible::queryAccessibleInterface(widget);
    const QDBusConnection bus(QStringLiteral("a11y"));
    if (!speaker || !bus.isConnected())
        return;
    constexpr int kPolitely = 1; // after what is being said
    auto signal = QDBusMessage::createSignal(
        QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(speaker)),
        QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("Announcement"));
    signal << QString() << kPolitely << 0 << QVariant::fromValue(QDBusVariant(text))
           << QVariantMap();
    bus.send(signal);
}

#else

void announce(QWidget* widget, const QString& text) {
    QAccessibleAnnouncementEvent event(widget, text);
    QAccessible::updateAccessibility(&event);
}

#endif

} // namespace

void NSAccessibilityPostNotification(NSView* view, NSAccessibilityAnnouncement,
                                     const std::string& text) {
    if (QAccessible::isActive())
        announce(view->widget(), QString::fromStdString(text));
}
