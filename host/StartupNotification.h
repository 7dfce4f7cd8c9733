// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWindow;

/// On X11, where Qt knows only the startup ID that the program itself was started with: tells the
/// desktop that the start with this one is over, and brings the window to the front with the time
/// of the user's deed that the ID carries, so that the window manager lets it pass. On another
/// platform, or without an ID, nothing.
void completeStartup(QWindow* window, const QString& startupID);
