// SPDX-License-Identifier: MIT
#include "src/pane/area/choosearea.h"

#include "platform/AppKit/NSAccessibility.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreGraphics/CGContext.h"
#include "platform/CoreGraphics/CGDirectDisplay.h"
#include "platform/HIToolbox/Appearance.h"
#include "src/pane/area/changedparts.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

constexpr EventTypeSpec overlayEvents[] = {
    {kEventClassWindow, kEventWindowBoundsChanged}, {kEventClassWindow, kEventWindowShown},
    {kEventClassWindow, kEventWindowDrawContent},   {kEventClassMouse, kEventMouseDown},
    {kEventClassMouse, kEventMouseDragged},         {kEventClassMouse, kEventMouseUp},
    {kEventClassKeyboard, kEventRawKeyDown},
};

constexpr EventTypeSpec arrowEvents[] = {
    {kEventClassKeyboard, kEventRawKeyDown},
    {kEventClassKeyboard, kEventRawKeyRepeat},
};

constexpr auto kPrompt =
    LOCALIZABLE("ScanArea", "Your current custom scan rectangle (if any) is shown in light blue.\r"
                            "Click and drag across the desktop select a new area then\r"
                            "press RETURN to accept it or ESC to cancel.");

constexpr UInt32 kMaxDisplays = 20;
constexpr CGFloat kArrowStep = 10; ///< points

struct Color {
    CGFloat red, green, blue, alpha;
};

struct Look {
    Color fill, border;
    CGFloat borderWidth;
};

constexpr Look kPromptBox = {{1.0F, 1.0F, 0.9F, 1.0F}, {0.0F, 0.0F, 0.0F, 0.9F}, 4.0F};
constexpr Color kPromptText = {0.0F, 0.0F, 0.0F, 1.0F};
constexpr Look kCurrentArea = {{0.2F, 0.2F, 1.0F, 0.1F}, {0.0F, 0.0F, 0.1F, 0.5F}, 1.0F};
constexpr Look kCurrentAreaInDrag = {{0.2F, 0.2F, 1.0F, 0.04F}, {0.0F, 0.0F, 0.1F, 0.1F}, 1.0F};
constexpr Look kDraggedArea = {{1.0F, 0.2F, 0.2F, 0.1F}, {1.0F, 0.2F, 0.2F, 0.8F}, 1.0F};

WindowRef overlay = nullptr;
EventHandlerUPP overlayUPP = nullptr;
CGRect worldBounds;
CGRect currentBounds;
CGRect newBounds; ///< from where the drag began
bool dragging = false;
Rect promptPlace;     ///< of its text in the last whole frame; empty when it couldn't be measured
ShownAreas lastDrawn; ///< by the last frame
OSStatus lastError = noErr;

/// Makes the overlay's port the current one for a while.
class OverlayPort {
public:
    OverlayPort() {
        GetPort(&saved_);
        SetPort(GetWindowPort(overlay));
    }

    ~OverlayPort() { SetPort(saved_); }

    OverlayPort(const OverlayPort&) = delete;
    OverlayPort& operator=(const OverlayPort&) = delete;

private:
    GrafPtr saved_ = nullptr;
};

void setFillColor(CGContext* context, const Color& color) {
    CGContextSetRGBFillColor(context, color.red, color.green, color.blue, color.alpha);
}

void drawArea(CGContext* context, const CGRect& area, const Look& look) {
    setFillColor(context, look.fill);
    CGContextFillRect(context, area);
    const auto& [red, green, blue, alpha] = look.border;
    CGContextSetRGBStrokeColor(context, red, green, blue, alpha);
    CGContextStrokeRectWithWidth(context, area, look.borderWidth);
}

const CFString* promptText() {
    static const auto prompt = createFromUTF8(localized("ScanArea", kPrompt));
    return prompt.get();
}

/// In the upper part of the main display.
void placePrompt() {
    promptPlace = {};
    const auto [origin, size] = CGDisplayBounds(CGMainDisplayID());
    Point extent{0, static_cast<SInt16>(static_cast<int>(size.width) / 2)};
    if (GetThemeTextDimensions(promptText(), kThemeSystemFont, kThemeStateActive, true, &extent,
                               nullptr) != noErr)
        return;
    const int top = static_cast<SInt16>(origin.y + size.height / 3.0);
    const int left = static_cast<int>(origin.x) + (static_cast<int>(size.width) - extent.h) / 2;
    promptPlace = {static_cast<SInt16>(top), static_cast<SInt16>(left),
                   static_cast<SInt16>(top + extent.v), static_cast<SInt16>(left + extent.h)};
}

/// Around the prompt's text.
CGRect promptBox() {
    const auto& [top, left, bottom, right] = promptPlace;
    return CGRectMake(static_cast<CGFloat>(left - 10), static_cast<CGFloat>(top - 20),
                      static_cast<CGFloat>(right - left + 20),
                      static_cast<CGFloat>(bottom - top + 40));
}

/// Not drawn when it couldn't be measured, or where nothing of it lies in `parts`.
void drawPrompt(CGContext* context, const ChangedParts* parts) {
    const CGRect box = promptBox();
    const bool isOutside =
        parts && !parts->touch(CGRectInset(box, -kPromptBox.borderWidth, -kPromptBox.borderWidth));
    if (promptPlace == Rect{} || isOutside)
        return;
    CGContextSaveGState(context);
    CGContextSetLineJoin(context, kCGLineJoinRound);
    drawArea(context, box, kPromptBox);
    setFillColor(context, kPromptText);
    DrawThemeTextBox(promptText(), kThemeSystemFont, kThemeStateActive, true, &promptPlace,
                     teCenter, context);
    CGContextRestoreGState(context);
}

void drawAreas(CGContext* context) {
    CGContextSaveGState(context);
    if (!CGRectIsEmpty(currentBounds))
        drawArea(context, currentBounds, dragging ? kCurrentAreaInDrag : kCurrentArea);
    if (dragging)
        drawArea(context, newBounds, kDraggedArea);
    CGContextRestoreGState(context);
}

std::string wholeNumber(CGFloat points) {
    return std::to_string(std::lround(points));
}

/// Makes a screen reader say where the area is, and `before` it.
void sayArea(const CGRect& area, const std::string& before = {}) {
    const auto [origin, size] = CGRectStandardize(area);
    const std::string place = CGRectIsEmpty(area)
                                  ? localized("ScanArea", "No area")
                                  : filled(localized("ScanArea", "Left %1, top %2, %3 by %4"),
                                           {wholeNumber(origin.x), wholeNumber(origin.y),
                                            wholeNumber(size.width), wholeNumber(size.height)});
    NSAccessibilityPostNotification(nullptr, NSAccessibilityAnnouncementRequestedNotification,
                                    before + place);
}

ShownAreas shownAreas() {
    return {currentBounds, newBounds, dragging};
}

/// Draws a frame: the `parts`, or all of it when that is null.
void drawFrame(const ChangedParts* parts) {
    const OverlayPort port;
    const auto context = CreateCGContextForPort(GetWindowPort(overlay));
    if (!context)
        return;
    SyncCGContextOriginWithPort(context.get(), GetWindowPort(overlay));
    CGContextTranslateCTM(context.get(), 0, worldBounds.size.height);
    CGContextScaleCTM(context.get(), 1, -1);
    if (parts)
        CGContextClipToRects(context.get(), parts->rects(), parts->count());
    else
        placePrompt();
    CGContextClearRect(context.get(), worldBounds);
    drawPrompt(context.get(), parts);
    drawAreas(context.get());
    CGContextFlush(context.get());
    lastDrawn = shownAreas();
}

/// Draws what differs from the last frame.
void drawChanges() {
    const ChangedParts parts(lastDrawn, shownAreas());
    drawFrame(&parts);
}

OSStatus handleWindowEvent(UInt32 kind) {
    switch (kind) {
    case kEventWindowBoundsChanged:
        updateOverlayBounds();
        [[fallthrough]];
    case kEventWindowShown:
    case kEventWindowDrawContent:
        drawOverlay();
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

/// Applies a mouse event to the areas. False when it changes nothing.
bool followMouse(UInt32 kind, CGPoint location) {
    switch (kind) {
    case kEventMouseDown:
        newBounds = {location, {}};
        dragging = true;
        return true;
    case kEventMouseDragged: {
        if (!dragging)
            newBounds.origin = location;
        dragging = true;
        const CGSize size{location.x - newBounds.origin.x, location.y - newBounds.origin.y};
        if (size == newBounds.size)
            return false;
        newBounds.size = size;
        return true;
    }
    case kEventMouseUp:
        currentBounds = newBounds;
        dragging = false;
        return true;
    default:
        return false;
    }
}

OSStatus handleMouseEvent(EventRef event) {
    CGPoint location;
    if (GetEventParameter(event, kEventParamMouseLocation, typeHIPoint, nullptr, sizeof location,
                          nullptr, &location) != noErr)
        return eventNotHandledErr;
    if (followMouse(GetEventKind(event), location))
        drawChanges();
    if (GetEventKind(event) == kEventMouseUp)
        sayArea(currentBounds);
    return eventNotHandledErr;
}

/// The key's character. 0 unless it has exactly one.
char characterOf(EventRef event) {
    char character = 0;
    std::size_t size = 0;
    const bool isRead = GetEventParameter(event, kEventParamKeyMacCharCodes, typeChar, nullptr,
                                          sizeof character, &size, &character) == noErr;
    return isRead && size == 1 ? character : '\0';
}

OSStatus handleKeyEvent(EventRef event, Boolean* accepted) {
    switch (characterOf(event)) {
    case kReturnCharCode:
    case kEnterCharCode:
        *accepted = true;
        [[fallthrough]];
    case kEscapeCharCode:
        QuitAppModalLoopForWindow(overlay);
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

/// How far an arrow key moves. Zero for another key.
CGSize arrowStep(char character) {
    switch (character) {
    case kLeftArrowCharCode:
        return {-kArrowStep, 0};
    case kRightArrowCharCode:
        return {kArrowStep, 0};
    case kUpArrowCharCode:
        return {0, -kArrowStep};
    case kDownArrowCharCode:
        return {0, kArrowStep};
    default:
        return {};
    }
}

/// Half as wide and high as the main display, and centred in it.
CGRect centredQuarter() {
    const CGRect display = CGDisplayBounds(CGMainDisplayID());
    return CGRectInset(display, display.size.width / 4, display.size.height / 4);
}

/// The place after the step, limited to the displays.
CGPoint stepInWorld(CGPoint place, CGSize step) {
    const auto& [origin, size] = worldBounds;
    return {std::clamp(place.x + step.width, origin.x, origin.x + size.width),
            std::clamp(place.y + step.height, origin.y, origin.y + size.height)};
}

/// The arrow keys replace a drag for those who can't drag. They move the current area's far corner;
/// with shift, the near one.
OSStatus arrowHandler(EventHandlerCallRef, EventRef event, void*) {
    const CGSize step = arrowStep(characterOf(event));
    if (dragging || step == CGSize())
        return eventNotHandledErr;
    newBounds = CGRectIsEmpty(currentBounds) ? centredQuarter() : currentBounds;
    CGPoint near = newBounds.origin;
    CGPoint far{near.x + newBounds.size.width, near.y + newBounds.size.height};
    CGPoint& moved = GetCurrentEventKeyModifiers() & shiftKey ? near : far;
    moved = stepInWorld(moved, step);
    newBounds = {near, {far.x - near.x, far.y - near.y}};
    currentBounds = newBounds;
    drawChanges();
    sayArea(currentBounds);
    return noErr;
}

/// Makes the window and installs its event handler.
OSStatus openOverlay(Boolean* accepted) {
    constexpr Rect kInitialBounds{0, 0, 100, 100};
    OSStatus error = CreateNewWindow(
        kOverlayWindowClass, kWindowStandardHandlerAttribute | kWindowOpaqueForEventsAttribute,
        &kInitialBounds, &overlay);
    if (error != noErr)
        return error;
    SetWindowTitleWithCFString(overlay,
                               createFromUTF8(localized("ScanArea", "Draw my own area")).get());
    if (!overlayUPP)
        overlayUPP = NewEventHandlerUPP(overlayHandler);
    const EventTargetRef target = GetWindowEventTarget(overlay);
    error = InstallEventHandler(target, overlayUPP, std::size(overlayEvents), overlayEvents,
                                accepted, nullptr);
    if (error != noErr)
        return error;
    return InstallEventHandler(target, arrowHandler, std::size(arrowEvents), arrowEvents, nullptr,
                               nullptr);
}

OSStatus runOverlay(const CGRect& area) {
    updateOverlayBounds();
    currentBounds = area;
    newBounds = {};
    dragging = false;
    ShowWindow(overlay);
    SetUserFocusWindow(overlay);
    sayArea(area,
            localized("ScanArea", "Arrow keys move a corner, with Shift the other one. Return "
                                  "keeps the area, Escape leaves it as it was.") +
                "\n");
    return RunAppModalLoopForWindow(overlay);
}

} // namespace

bool chooseArea(CGRect* area) {
    if (overlay)
        return false; // a screen reader can press the pane's button again
    Boolean accepted = false;
    lastError = openOverlay(&accepted);
    if (lastError == noErr)
        lastError = runOverlay(*area);
    if (overlay)
        DisposeWindow(overlay);
    overlay = nullptr;
    if (accepted)
        *area = CGRectStandardize(currentBounds);
    return accepted;
}

OSStatus chooseAreaError() {
    return lastError;
}

void updateOverlayBounds() {
    const OverlayPort port;
    CGRect bounds = CGDisplayBounds(CGMainDisplayID());
    CGDirectDisplayID displays[kMaxDisplays];
    UInt32 count = 0;
    if (CGGetActiveDisplayList(kMaxDisplays, displays, &count) == kCGErrorSuccess && count > 1)
        for (UInt32 i = 0; i < count; ++i)
            bounds = CGRectUnion(bounds, CGDisplayBounds(displays[i]));
    worldBounds = bounds;

    const auto x = static_cast<SInt16>(bounds.origin.x);
    const auto y = static_cast<SInt16>(bounds.origin.y);
    MoveWindow(overlay, x, y, false);
    SizeWindow(overlay, static_cast<SInt16>(bounds.size.width),
               static_cast<SInt16>(bounds.size.height), false);
    SetOrigin(x, y);
}

void drawOverlay() {
    drawFrame(nullptr);
}

OSStatus overlayHandler(EventHandlerCallRef, EventRef event, void* userData) {
    switch (GetEventClass(event)) {
    case kEventClassWindow:
        return handleWindowEvent(GetEventKind(event));
    case kEventClassMouse:
        return handleMouseEvent(event);
    case kEventClassKeyboard:
        return GetEventKind(event) == kEventRawKeyDown
                   ? handleKeyEvent(event, static_cast<Boolean*>(userData))
                   : OSStatus{eventNotHandledErr};
    default:
        return eventNotHandledErr;
    }
}
