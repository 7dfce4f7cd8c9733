#pragma once

/// Whether assistive programs may read and operate the screen: the property IsEnabled of the
/// interface org.a11y.Status that org.a11y.Bus has on the session bus. Where there is no such
/// service, or it doesn't answer, it counts as off; nothing starts the service.
///
/// The first call asks, and gives up after a tenth of a second; usually the answer takes a
/// millisecond. From then on the service's announcements are followed and no call waits. Main
/// thread only, and after a QCoreApplication has been made.
bool AXAPIEnabled();
