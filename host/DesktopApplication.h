// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

class QDBusConnection;

/// What a desktop, or another start of the program, asks of the one that is open: to come to the
/// front, perhaps with one of its sections.
struct ShowRequest {
    QString section;   ///< as showSection() takes it; empty for the one in sight
    QString startupID; ///< as completeStartup() takes it
};

/// What a start of this program passes on to the window, so that the desktop lets it come to the
/// front: the tokens that it was started with. Taken before there is a QApplication, which takes
/// them itself.
QVariantMap activationData();

/// Exports the interface org.freedesktop.Application. Activate and ActivateAction, with a section's
/// name as the action, call `onShow`; so does Open, whose files are left alone. To be called once.
void exportDesktopApplication(QDBusConnection& bus, std::function<void(const ShowRequest&)> onShow);

/// Asks the program that owns the name for the same, and waits at most two seconds for its answer:
/// false without one. It is not started for it.
bool askDesktopApplication(const QDBusConnection& bus, const ShowRequest& request,
                           const QVariantMap& activation);
