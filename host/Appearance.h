// SPDX-License-Identifier: MIT
#pragma once

#include "host/DesktopPalette.h"

#include <QDBusMessage>
#include <QFont>
#include <QObject>

/// Has the application look as the desktop's settings portal wishes, from now on and at every
/// change: its palette; its font's size, where the display's server doesn't tell it; and without
/// animations, for which the application's property "reducedMotion" is true as well.
///
/// Nothing waits for the portal: without a session bus, a portal or an answer all stays as it is.
class Appearance final : public QObject {
    Q_OBJECT

public:
    /// Owned by the application, which must be there.
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
};
