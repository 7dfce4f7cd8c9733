// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QString>
#include <QTimer>

#include <deque>
#include <map>
#include <mutex>
#include <optional>

/// Events between the thread that receives them and the main thread, which handles them a few at a
/// time, so that a flood of them delays nothing else for long. Of reports whose last one counts,
/// each sender has one waiting. For all else a sender has 16 MiB: ten thousand records.
class AppleEventInbox final : public QObject {
public:
    explicit AppleEventInbox(QObject* parent);

    /// Any thread. False when there is no room.
    bool put(AppleEvent event, const QDBusMessage& message, const QDBusConnection& connection);

private:
    struct Waiting {
        AppleEvent event;
        QDBusMessage message;
        QDBusConnection connection;

        std::size_t bytes() const;
    };

    bool replaceLast(Waiting& report);
    std::optional<Waiting> take();
    void deliver();

    std::mutex guard_;
    std::deque<Waiting> waiting_;
    std::map<QString, std::size_t> taken_; ///< bytes, by sender
    bool isAnnounced_ = false;             ///< the main thread will look
    QTimer look_;
};
