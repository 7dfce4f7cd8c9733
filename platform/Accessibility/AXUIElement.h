// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

/// Whether assistive programs may read and operate the screen: the property IsEnabled of the
/// interface org.a11y.Status that org.a11y.Bus has on the session bus. Where there is no such
/// service, or as long as it hasn't answered, it counts as off.
///
/// The first call asks, which starts a service that isn't running, and gives up after a tenth of a
/// second; usually the answer takes a millisecond. From then on answers and announcements are
/// followed, the service isn't started again, and no call waits. Main thread only, and after a
/// QCoreApplication has been made.
bool AXAPIEnabled();

/// Whether AXAPIEnabled is what the service said, or there is none; false while its first answer
/// is still awaited.
bool isAXAPIEnabledKnown();

/// Calls `listener` from the event loop after each answer. There is one listener; an empty function
/// takes it away.
void setAXAPIEnabledListener(std::function<void()> listener);
