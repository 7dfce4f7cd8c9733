#pragma once

class ViewWidget;

/// Makes Qt ask here for the accessibility of views that draw themselves. Calling it again does
/// nothing.
void installViewAccessibility();

/// Tells a screen reader which element of the view has the focus, now that the view has it.
void notifyFocusInside(ViewWidget& widget);
