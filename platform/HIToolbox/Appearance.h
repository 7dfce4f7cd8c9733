// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/QuickDraw/QuickDraw.h"

// The Appearance Manager: buttons and texts in the desktop's look, drawn into the current port.
// Style, palette and text size are those of the view being drawn.

constexpr OSStatus kThemeNoPortErr = -30566;

enum ThemeButtonKind : UInt16 {
    kThemeBevelButton = 3,         ///< with square corners
    kThemeRoundedBevelButton = 15, ///< like the desktop's own push buttons
};

enum ThemeDrawState : UInt32 { kThemeStateActive = 1 };

enum ThemeButtonValue : UInt16 {
    kThemeButtonOff = 0,
    kThemeButtonOn = 1, ///< pushed in
};

enum ThemeButtonAdornment : UInt16 { kThemeAdornmentNone = 0 };

struct ThemeButtonDrawInfo {
    ThemeDrawState state;
    ThemeButtonValue value;
    ThemeButtonAdornment adornment;
};

/// Draws a button's content. `bounds` is the area inside its frame.
using ThemeButtonDrawUPP = void (*)(const Rect* bounds, ThemeButtonKind kind,
                                    const ThemeButtonDrawInfo* info, void* userData);
using ThemeEraseUPP = void (*)(const Rect* bounds, void* userData);

/// Draws a button and calls `label` for its content. `previousInfo` and `erase` have no effect:
/// views are erased before they are drawn. kThemeNoPortErr outside of drawing.
OSStatus DrawThemeButton(const Rect* bounds, ThemeButtonKind kind, const ThemeButtonDrawInfo* info,
                         const ThemeButtonDrawInfo* previousInfo, ThemeEraseUPP erase,
                         ThemeButtonDrawUPP label, void* userData);

enum ThemeBrush : SInt16 { kThemeBrushUtilityWindowBackgroundActive = 7 /**< of palettes */ };

/// Sets the current port's background to the brush's colour. Depth and kind of the device have no
/// effect. kThemeNoPortErr outside of drawing.
OSStatus SetThemeBackground(ThemeBrush brush, SInt16 depth, bool isColorDevice);

/// Draws the ring of the keyboard focus just inside the rectangle. Nothing when `hasFocus` is
/// false, since views are erased before they are drawn.
OSStatus DrawThemeFocusRect(const Rect* rect, bool hasFocus);

enum ThemeFontID : UInt16 {
    kThemeSystemFont = 0, ///< of dialogues
    kThemeLabelFont = 6,  ///< the small text under an icon
};

enum ThemeJustification : SInt16 { teCenter = 1 };

/// Measures a text; a carriage return begins a new line. `bounds->h` receives its width,
/// `bounds->v` its height, both rounded up. With `wrapToWidth`, `bounds->h` must hold the width to
/// wrap at. `baseline` (may be null) receives the distance from the bottom to the last baseline,
/// negative. kThemeNoPortErr outside of drawing.
OSStatus GetThemeTextDimensions(const CFString* text, ThemeFontID font, ThemeDrawState state,
                                bool wrapToWidth, Point* bounds, SInt16* baseline);

/// Draws a text at the top of the box. A single line that is too wide is drawn up to a quarter
/// smaller; beyond that it ends in an ellipsis. With a context, the box is in its coordinates, with
/// y growing downward, and the text has its fill colour. With null, the box is in the current
/// port's coordinates, and the text has the theme's colour.
OSStatus DrawThemeTextBox(const CFString* text, ThemeFontID font, ThemeDrawState state,
                          bool wrapToWidth, const Rect* box, ThemeJustification justification,
                          CGContext* context);
