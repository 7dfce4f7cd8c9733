// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantMap>

#include <functional>

class QDBusConnection;

/// A request of the desktop, or of another start, to the running program: to come to the front,
/// perhaps with a section.
struct ShowRequest {
    QString section;   ///< as for showSection(); empty for the current one
    QString startupID; ///< as for completeStartup()
};

/// Tokens that this program was started with. The window passes them on, so that the desktop lets
/// it come to the front. Take them before there is a QApplication, which removes them.
QVariantMap activationData();

/// Exports the interface org.freedesktop.Application. These methods call `onShow`: Activate,
/// ActivateAction with a section's name as the action, and Open, whose files are ignored. Call it
/// once.
void exportDesktopApplication(QDBusConnection& bus, std::function<void(const ShowRequest&)> onShow);

/// Sends the request to the program that owns the name and waits two seconds for its answer. False
/// without one. Doesn't start the program.
bool askDesktopApplication(const QDBusConnection& bus, const ShowRequest& request,
                           const QVariantMap& activation);
