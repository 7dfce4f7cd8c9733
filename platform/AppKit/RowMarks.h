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
