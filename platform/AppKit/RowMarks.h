// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class NSView;

// Operations on the row around a view, which macOS doesn't have.

/// Marks the row around a view: what it sets isn't at its default. A button in the row calls
/// `press`. If each radio button of a group is a row, the chosen one's row is marked. `label` says
/// what the button does, in UTF-8; empty removes the mark. A view outside rows isn't marked.
void setRowMark(const NSView& view, const std::string& label, std::function<void()> press);

/// Hides the row around a view, as one whose setting has no effect now, or shows it again. A hidden
/// row takes no room, and the keyboard goes to the next. Nothing happens to a view outside rows.
void setRowHidden(const NSView& view, bool hidden);

/// Gives the keyboard to the view, which is in sight, or to what is operated in the row around it:
/// rather to a slider than to a button, where one more press does harm, and never to a field, which
/// would take the letters and Ctrl+Z.
void focusRow(const NSView& view);
