// SPDX-License-Identifier: MIT
#pragma once

#include <QDBusMessage>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QSet>

#include <functional>

/// Whether the screen is locked or covered by a saver, as the session's programs tell it over
/// D-Bus: logind's hint, and the screen savers of the desktops. None of them has to be there, and
/// nothing waits for them. One that goes away without a word counts as unlocked.
class ScreenLock final : public QObject {
    Q_OBJECT

public:
    /// `changed` is called after each change. Unlocked at first.
    explicit ScreenLock(std::function<void(bool)> changed);

private Q_SLOTS:
    void saverChanged(bool isActive, const QDBusMessage& signal);
    void hintChanged(const QString& interface, const QVariantMap& properties);
    void saverLeft(const QString& service);

private:
    void followSavers();
    void followHint();
    void followSession(const QString& path);
    void set(const QString& source, bool isLocked);

    std::function<void(bool)> changed_;
    QDBusServiceWatcher savers_;
    QSet<QString> locked_; ///< those who say that it is
};
