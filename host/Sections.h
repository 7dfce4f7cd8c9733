// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// Shows a section of the pane: the page whose property "section" is `name`, in any letter case and
/// with dashes for blanks. False when there is none.
bool showSection(QWidget* pane, const QString& name);
