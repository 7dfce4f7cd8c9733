// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/AppleEvents.h"

#include <QDBusMessage>
#include <QString>

#include <optional>

// How an event travels: as a call of the one method of the one interface.

const QString kEventObjectPath = QStringLiteral("/org/korvex/AppleEvents");
const QString kEventInterface = QStringLiteral("org.korvex.AppleEvents1");
const QString kEventMember = QStringLiteral("Event");
const QString kEventSignature = QStringLiteral("uua(uuay)");

/// What one event may carry: more parameters, or more bytes in all of them together, are refused.
constexpr std::size_t kMaxEventParameters = 64;
constexpr std::size_t kMaxEventBytes = 1u << 20;

/// The call that carries an event to its target.
QDBusMessage messageOfEvent(const AppleEvent& event);

/// The event that a call of kEventSignature carries; none when it exceeds the limits. The last of
/// several parameters of one keyword counts.
std::optional<AppleEvent> eventOfMessage(const QDBusMessage& message);
