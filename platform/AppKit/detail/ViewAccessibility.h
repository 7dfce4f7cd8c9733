// SPDX-License-Identifier: MIT
#pragma once

class ViewWidget;

/// Makes Qt use this for the accessibility of views that draw themselves. A second call does
/// nothing.
void installViewAccessibility();

/// Drops the accessibility object that Qt made before the widget had its view.
void renewAccessibility(ViewWidget& widget);

/// Tells a screen reader which element of the focused view has the focus.
void notifyFocusInside(ViewWidget& widget);
