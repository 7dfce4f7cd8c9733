// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class NSView;

/// Marks the row around a view: what it sets isn't at its default. A button in the row calls
/// `press`. If each radio button of a group is a row, the chosen one's row is marked. `label` says
/// what the button does, in UTF-8; empty removes the mark. A view outside rows isn't marked. macOS
/// has no such operation.
void setRowMark(const NSView& view, const std::string& label, std::function<void()> press);

/// Gives the keyboard to the view, which is in sight, or to what is operated in the row around it:
/// rather to a slider than to a button, where one more press does harm, and never to a field, which
/// would take the letters and Ctrl+Z. No operation of the platform.
void focusRow(const NSView& view);
