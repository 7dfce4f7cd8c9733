// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Whether assistive programs may read and operate the screen. That is the property IsEnabled of
/// org.a11y.Status, which the service org.a11y.Bus has on the session bus. Without the service, and
/// until it has answered, the result is false.
///
/// The first call asks the service and starts it if necessary. It waits a tenth of a second at
/// most; usually the answer takes a millisecond. Later calls don't wait: they have the last answer
/// or announcement. Main thread only, after a QCoreApplication has been made.
bool AXAPIEnabled();

/// False while the service hasn't given its first answer.
bool isAXAPIEnabledKnown();

/// Asks the service to switch it on and doesn't wait. `failed` is called from the event loop if it
/// refuses or there is none; the listener hears of success. No operation of the platform.
void enableAXAPI(std::function<void()> failed);

/// Calls `listener` from the event loop after each answer. There is one listener. An empty function
/// removes it.
void setAXAPIEnabledListener(std::function<void()> listener);
