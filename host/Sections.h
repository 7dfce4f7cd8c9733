// SPDX-License-Identifier: MIT
#pragma once

class QString;
class QWidget;

/// Brings a section of the pane into sight: the page of the form whose property "section" is
/// `name`, in letters of either case and with dashes for blanks. False when the pane has none of
/// that name.
bool showSection(QWidget* pane, const QString& name);
