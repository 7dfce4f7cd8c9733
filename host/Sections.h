// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// Shows a section of the pane: the page whose property "section" is `name`, in any letter case and
/// with dashes for blanks. "last" is the one that was kept last, if any. False when there is none.
bool showSection(QWidget* pane, const QString& name);

/// Keeps the name of the section that is shown, in this user's state folder.
void keepSection(QWidget* pane);
