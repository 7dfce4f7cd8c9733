// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"

#include <QDBusMessage>
#include <QString>

#include <optional>

// How an event is sent: as a call of one method.

const QString kEventObjectPath = QStringLiteral("/org/korvex/AppleEvents");
const QString kEventInterface = QStringLiteral("org.korvex.AppleEvents1");
const QString kEventMember = QStringLiteral("Event");
const QString kEventSignature = QStringLiteral("uua(uuay)");

/// Limits of one event. One with more parameters, or more bytes in all, is refused.
constexpr std::size_t kMaxEventParameters = 64;
constexpr std::size_t kMaxEventBytes = 1u << 20;

/// The D-Bus call for an event.
QDBusMessage messageOfEvent(const AppleEvent& event);

/// The event in a call of kEventSignature. None when it exceeds the limits. Of several parameters
/// with the same keyword the last counts.
std::optional<AppleEvent> eventOfMessage(const QDBusMessage& message);
