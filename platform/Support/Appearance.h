// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Support/DesktopPalette.h"

#include <QDBusMessage>
#include <QFont>
#include <QObject>

/// Makes the application look as the desktop's settings portal wishes, now and after each change.
/// It sets the palette, the font size where the display server doesn't report it, and whether there
/// are animations.
///
/// Nothing waits for the portal. Without a session bus, portal or answer nothing changes.
class Appearance final : public QObject {
    Q_OBJECT

public:
    /// Owned by the application, which must exist.
    static void follow();

private Q_SLOTS:
    void settingChanged(const QDBusMessage& signal);

private:
    explicit Appearance(QObject* application);

    void ask();
    void take(const QString& group, const QString& key, const QVariant& value);
    void apply();

    DesktopLook look_, applied_;
    QFont themeFont_;
    bool themeAnimates_;
};
