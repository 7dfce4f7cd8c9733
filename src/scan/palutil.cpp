// SPDX-License-Identifier: MIT
#include "src/scan/palutil.h"

#include "platform/CoreServices/LaunchServices.h"
#include "platform/HIToolbox/Appearance.h"
#include "src/files/iconutil.h"
#include "src/store/prefs.h"

#include <algorithm>

namespace {

/// If this on-screen keyboard is installed, the agent uses it for typing. Action 1 then has its
/// icon.
constexpr UInt8 kTypeAction = 1;
constexpr OSType kAction1AppCreator = fourCharCode("KYSL");
constexpr char kAction1AppBundleID[] = "com.github.maliit.keyboard";

IconRef actionIcons[kNumActions]; ///< the icon module owns them

/// The icon of the outside application behind an action. It is looked up at every draw, so it
/// follows installation and removal. Null when there is none.
CFRef<Icon> outsideIcon(UInt8 action) {
    CFRef<Icon> icon;
    if (action == kTypeAction &&
        LSFindApplicationForInfo(kAction1AppCreator, CFSTR(kAction1AppBundleID), nullptr, nullptr,
                                 nullptr) == noErr)
        GetIconRef(kOnSystemDisk, kAction1AppCreator, fourCharCode("APPL"), &icon);
    return icon;
}

/// The action's icon in the agent's bundle. Null when it has none.
IconRef agentIcon(UInt8 action) {
    if (action < kNumActions && actionIcons[action])
        return actionIcons[action];
    const CFString* name = palutilActionIconName(action);
    if (!name)
        return nullptr;
    return actionIcons[action] = iconUtilGetBundlesResourceIcon(palutilBundle(), name);
}

/// Draws the title at the bottom or in the middle of the bounds. Returns the top edge of its box,
/// or the bottom of the bounds when the title can't be measured.
SInt16 drawText(const Rect& bounds, const CFString* title, bool atBottom) {
    Point extent;
    if (GetThemeTextDimensions(title, kThemeLabelFont, kThemeStateActive, false, &extent,
                               nullptr) != noErr)
        return bounds.bottom;
    Rect box = bounds;
    if (!atBottom)
        box.bottom = static_cast<SInt16>((bounds.top + bounds.bottom + extent.v) >> 1);
    box.top = static_cast<SInt16>(box.bottom - extent.v);
    DrawThemeTextBox(title, kThemeLabelFont, kThemeStateActive, false, &box, teCenter, nullptr);
    return box.top;
}

/// The square in the middle of the area for the icon: 32 or 16 points, or the shorter side if that
/// is less.
Rect iconSquare(const Rect& area) {
    const int room = std::min(area.right - area.left, area.bottom - area.top);
    const int size = room > 32 ? 32 : room > 16 ? 16 : room;
    const int left = (area.left + area.right - size) >> 1;
    const int top = (area.top + area.bottom - size) >> 1;
    return {static_cast<SInt16>(top), static_cast<SInt16>(left), static_cast<SInt16>(top + size),
            static_cast<SInt16>(left + size)};
}

/// What the label routine draws.
struct PaletteBtnContent {
    UInt32 content;
    UInt8 action;
};

void drawContent(const Rect* bounds, ThemeButtonKind, const ThemeButtonDrawInfo*, void* userData) {
    const auto& [content, action] = *static_cast<const PaletteBtnContent*>(userData);
    if (action == kEmptyAction)
        return;
    const auto title =
        content & kButtonContentName ? palutilCopyShownTitle(action) : CFRef<const CFString>();
    const auto icon = content & kButtonContentIcon ? palutilCopyActionIcon(action) : CFRef<Icon>();
    if (!icon) {
        if (title)
            drawText(*bounds, title.get(), false);
        return;
    }
    Rect area = *bounds;
    if (title)
        area.bottom = drawText(*bounds, title.get(), true);
    iconUtilPlotIcon(iconSquare(area), kAlignAbsoluteCenter, kTransformNone, icon.get());
}

} // namespace

void palutilSetup() {
    iconUtilSetup();
}

void palutilCleanup() {
    palutilForgetActions();
    std::fill_n(actionIcons, kNumActions, nullptr);
    iconUtilCleanup();
}

CFRef<Icon> palutilCopyActionIcon(UInt8 action) {
    auto icon = outsideIcon(action);
    return icon ? icon : CFRef<Icon>::retain(agentIcon(action));
}

void palutilDrawBtn(UInt8 action, UInt8 selected, const Rect& bounds) {
    palutilDrawBtnAs(action, selected, bounds, prefs.buttonShape, prefs.buttonContent);
}

void palutilDrawBtnAs(UInt8 action, UInt8 selected, const Rect& bounds, UInt32 shape,
                      UInt32 content) {
    const ThemeButtonKind kind =
        shape == kButtonShapeRounded ? kThemeRoundedBevelButton : kThemeBevelButton;
    const ThemeButtonDrawInfo info{kThemeStateActive, selected ? kThemeButtonOn : kThemeButtonOff,
                                   kThemeAdornmentNone};
    PaletteBtnContent userData{content, action};
    DrawThemeButton(&bounds, kind, &info, nullptr, nullptr, drawContent, &userData);
}
