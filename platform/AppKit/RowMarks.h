// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>

class NSView;

/// Shows in the row around a view that what it sets isn't at its default, with a button that calls
/// `press`. In a group of radio buttons that are a row each, that is the chosen one's. `label` is
/// what a press does, in words and in UTF-8; empty takes all that away. A view in no row shows
/// nothing. No operation of the platform.
void setRowMark(const NSView& view, const std::string& label, std::function<void()> press);

/// Gives the keyboard to the view, which is in sight, or to what is operated in the row around it:
/// rather to a slider than to a button, where one more press does harm, and never to a field, which
/// would take the letters and Ctrl+Z. No operation of the platform.
void focusRow(const NSView& view);
