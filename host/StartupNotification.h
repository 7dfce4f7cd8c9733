// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWindow;

/// Ends a startup notification on X11: tells the desktop that the start with this ID is over, and
/// brings the window to the front. It uses the time of the user's action from the ID, so that the
/// window manager allows it. Qt knows only the ID that the program was started with. Does nothing
/// on other platforms or without an ID.
void completeStartup(QWindow* window, const QString& startupID);
