// SPDX-License-Identifier: MIT
#pragma once

class NSAccessibilityStaticText;
class QAccessibleInterface;
class ViewWidget;

/// What a screen reader is told of a view that draws one text. The caller owns the result.
QAccessibleInterface* makeTextAccessibility(ViewWidget& widget, NSAccessibilityStaticText& text);
