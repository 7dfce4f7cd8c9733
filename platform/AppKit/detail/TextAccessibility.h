// SPDX-License-Identifier: MIT
#pragma once

class NSAccessibilityStaticText;
class QAccessibleInterface;
class ViewWidget;

/// Describes a view with one text to screen readers. The caller owns the result.
QAccessibleInterface* makeTextAccessibility(ViewWidget& widget, NSAccessibilityStaticText& text);
