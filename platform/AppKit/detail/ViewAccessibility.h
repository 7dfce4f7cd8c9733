// SPDX-License-Identifier: MIT
#pragma once

class ViewWidget;

/// Makes Qt ask here for the accessibility of views that draw themselves. Calling it again does
/// nothing.
void installViewAccessibility();

/// Lets go of what Qt took the widget for before it had its view; called when it gets it.
void renewAccessibility(ViewWidget& widget);

/// Tells a screen reader which element of the view has the focus, now that the view has it.
void notifyFocusInside(ViewWidget& widget);
