// SPDX-License-Identifier: MIT
#include "platform/AppKit/detail/Announcement.h"

#include "platform/AppKit/NSAccessibility.h"

#include <QAccessible>
#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QWidget>

#if QT_VERSION < QT_VERSION_CHECK(6, 8, 0)

/// Qt has announcements from 6.8 on. Before that its signal for a new description lacks the text.
/// So the text is sent on Qt's connection to assistive technology, as the new description of the
/// focused control. Screen readers say that.
void announce(const QString& text) {
    const QWidget* focus = QApplication::focusWidget();
    const QDBusConnection bus(QStringLiteral("a11y"));
    if (!QAccessible::isActive() || !focus || !bus.isConnected())
        return;
    QAccessibleInterface* speaker =
        QAccessible::queryAccessibleInterface(const_cast<QWidget*>(focus));
    if (QAccessibleInterface* inside = speaker ? speaker->focusChild() : nullptr)
        speaker = inside;
    if (!speaker)
        return;
    auto signal = QDBusMessage::createSignal(
        QStringLiteral("/org/a11y/atspi/accessible/%1").arg(QAccessible::uniqueId(speaker)),
        QStringLiteral("org.a11y.atspi.Event.Object"), QStringLiteral("PropertyChange"));
    signal << QStringLiteral("accessible-description") << 0 << 0
           << QVariant::fromValue(QDBusVariant(text)) << QVariantMap();
    bus.send(signal);
}

void announceDescription(const QWidget& widget) {
    if (widget.hasFocus())
        announce(widget.accessibleDescription());
}

#else

void announce(const QString& text) {
    if (QWidget* focus = QApplication::focusWidget(); focus && QAccessible::isActive()) {
        QAccessibleAnnouncementEvent event(focus, text);
        QAccessible::updateAccessibility(&event);
    }
}

void announceDescription(const QWidget&) {}

#endif

void NSAccessibilityPostNotification(NSView*, AnnouncementNotification, const std::string& text) {
    announce(QString::fromStdString(text));
}
