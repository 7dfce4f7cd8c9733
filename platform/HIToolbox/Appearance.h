// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFString.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/QuickDraw/QuickDraw.h"

// The Appearance Manager: buttons and texts in the look of the user's desktop, drawn into the
// current port. Its style, palette and text size are those of the view being drawn.

constexpr OSStatus kThemeNoPortErr = -30566;

enum ThemeButtonKind : UInt16 {
    kThemeBevelButton = 3,         ///< with square corners
    kThemeRoundedBevelButton = 15, ///< as the desktop's own push buttons
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

/// Draws what is on a button; `bounds` is the place inside its frame.
using ThemeButtonDrawUPP = void (*)(const Rect* bounds, ThemeButtonKind kind,
                                    const ThemeButtonDrawInfo* info, void* userData);
using ThemeEraseUPP = void (*)(const Rect* bounds, void* userData);

/// Draws a button and then calls `label` for its content. `previousInfo` and `erase` say nothing
/// here: every view is erased before it is drawn. kThemeNoPortErr outside of drawing.
OSStatus DrawThemeButton(const Rect* bounds, ThemeButtonKind kind, const ThemeButtonDrawInfo* info,
                         const ThemeButtonDrawInfo* previousInfo, ThemeEraseUPP erase,
                         ThemeButtonDrawUPP label, void* userData);

enum ThemeBrush : SInt16 { kThemeBrushUtilityWindowBackgroundActive = 7 /**< of palettes */ };

/// Gives the current port the brush's colour as its background. Depth and kind of the device make
/// no difference. kThemeNoPortErr outside of drawing.
OSStatus SetThemeBackground(ThemeBrush brush, SInt16 depth, bool isColorDevice);

/// Draws the ring that shows where the keyboard acts, just inside the rectangle; nothing when
/// `hasFocus` is false, as every view is erased before it is drawn.
OSStatus DrawThemeFocusRect(const Rect* rect, bool hasFocus);

enum ThemeFontID : UInt16 {
    kThemeSystemFont = 0, ///< of dialogues
    kThemeLabelFont = 6,  ///< the small text under an icon
};

enum ThemeJustification : SInt16 { teCenter = 1 };

/// Measures a text, in which a carriage return begins a line: `bounds->h` becomes its width and
/// `bounds->v` its height, rounded up; with `wrapToWidth`, `bounds->h` is first the width to wrap
/// at. `baseline` (may be null) receives the distance of the last line's baseline from the bottom,
/// negative. kThemeNoPortErr outside of drawing.
OSStatus GetThemeTextDimensions(const CFString* text, ThemeFontID font, ThemeDrawState state,
                                bool wrapToWidth, Point* bounds, SInt16* baseline);

/// Draws a text into the box, from its top. A single line that is too wide for it is drawn up to a
/// quarter smaller, and beyond that is shortened and ends in an ellipsis. With a context, the box
/// lies in its coordinates, with y growing downward, and the text has its fill colour; with null,
/// in the current port's, and the text has the theme's.
OSStatus DrawThemeTextBox(const CFString* text, ThemeFontID font, ThemeDrawState state,
                          bool wrapToWidth, const Rect* box, ThemeJustification justification,
                          CGContext* context);
