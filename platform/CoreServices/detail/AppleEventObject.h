#pragma once

#include "platform/CoreServices/AppleEvents.h"

#include <QDBusMessage>

/// What one event may carry: more parameters, or more bytes in all of them together, are refused.
constexpr std::size_t kMaxEventParameters = 64;
constexpr std::size_t kMaxEventBytes = 1u << 20;

/// The call that carries an event to its target.
QDBusMessage messageOfEvent(const AppleEvent& event);

/// Receives events at /org/korvex/AppleEvents from now on and gives them to their handlers. False
/// without a bus. Calling it again does nothing.
bool exportAppleEventObject();

/// Gives an event to the most specific handler that is installed for it.
OSErr dispatchAppleEvent(const AppleEvent& event, AppleEvent* reply);
