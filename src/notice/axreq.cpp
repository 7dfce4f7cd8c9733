// SPDX-License-Identifier: MIT
#include "src/notice/axreq.h"

#include "platform/Accessibility/AXUIElement.h"
#include "platform/AppKit/UserMessages.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "platform/CoreFoundation/Localization.h"
#include "platform/CoreServices/LaunchServices.h"
#include "platform/HIToolbox/AppleHelp.h"
#include "platform/HIToolbox/CommandEvents.h"
#include "platform/HIToolbox/EventTimers.h"
#include "platform/HIToolbox/IBCarbonRuntime.h"
#include "platform/HIToolbox/NibRequirement.h"
#include "platform/HIToolbox/Sheets.h"
#include "src/store/prefs.h"

#include <ctime>
#include <iterator>

namespace {

constexpr ControlID kNeverAgain{fourCharCode("axRq"), 100};
constexpr UInt32 kDismiss = fourCharCode("axCn");
constexpr UInt32 kOpenSettings = fourCharCode("axOp");
constexpr UInt32 kSwitchOn = fourCharCode("axSw");

constexpr SInt32 kNever = 0x7FFFFFFF; ///< the stored day that means "never again"
constexpr EventTimerInterval kSecondsShown = 30.0;

const NibRequirementRegistration nibRequirement([] {
    static constexpr const char* windows[] = {"sheet", "window"};
    static constexpr ControlID controls[] = {kNeverAgain};
    static constexpr UInt32 commands[] = {kDismiss, kOpenSettings, kSwitchOn};
    return NibRequirement{"axreq", windows, controls, commands};
}());

WindowRef noticeWindow = nullptr;
WindowRef parentWindow = nullptr; ///< null unless the notice is a sheet
EventLoopTimerRef noticeTimer = nullptr;
CFRef<CFBundle> noticeBundle;  ///< null: the main bundle
bool isNoticeDoubtful = false; ///< shown before the system's answer was known
CFRef<const CFType> dayBefore; ///< stored before a doubtful notice; null: nothing

const CFString* lastNoticeKey() {
    return CFSTR("axReqLastNoticeDate");
}

/// Days since 1 January 1970 UTC.
SInt32 today() {
    constexpr std::time_t kSecondsADay = 86400;
    return static_cast<SInt32>(std::time(nullptr) / kSecondsADay);
}

bool writeLastNoticeDate(SInt32 day) {
    const auto number = CFNumberCreate(kCFNumberSInt32Type, &day);
    if (!number)
        return false;
    CFPreferencesSetAppValue(lastNoticeKey(), number.get(), kAgentBundleID);
    return CFPreferencesAppSynchronize(kAgentBundleID);
}

/// Restores the stored day, as if the notice hadn't been shown.
void giveDayBack() {
    CFPreferencesSetAppValue(lastNoticeKey(), dayBefore.get(), kAgentBundleID);
    CFPreferencesAppSynchronize(kAgentBundleID);
}

bool isNeverAgainTicked() {
    ControlRef control = nullptr;
    return GetControlByID(noticeWindow, &kNeverAgain, &control) == noErr &&
           GetControl32BitValue(control) != 0;
}

/// Opens the help page that says where to switch assistive access on.
void openHelpPage() {
    const CFBundle* bundle = noticeBundle ? noticeBundle.get() : CFBundleGetMainBundle();
    const auto* book = bundle ? dynamicCFCast<CFString>(CFBundleGetValueForInfoDictionaryKey(
                                    bundle, CFSTR("CFBundleHelpBookName")))
                              : nullptr;
    AHGotoPage(book, CFSTR("access.html"), nullptr);
}

void openAccessSettings() {
    const auto url = CFURLCreateFromFileSystemRepresentation(
        "/System/Library/PreferencePanes/UniversalAccessPref.prefPane", true);
    if (url && LSOpenCFURLRef(url.get(), nullptr) == noErr)
        return;
    tellUser("access", {.text = localized("Notice", "This desktop has no settings that could be "
                                                    "opened here. The help says how to switch "
                                                    "assistive access on.")});
    openHelpPage();
}

/// A press or a key in the notice: its user is reading it.
OSStatus stirred(EventHandlerCallRef, EventRef, void*) {
    if (noticeTimer)
        SetEventLoopTimerNextFireTime(noticeTimer, kSecondsShown);
    return eventNotHandledErr;
}

OSStatus windce(EventHandlerCallRef, EventRef event, void*) {
    HICommand command;
    if (GetEventClass(event) != kEventClassCommand || GetEventKind(event) != kEventCommandProcess ||
        GetEventParameter(event, kEventParamDirectObject, typeHICommand, nullptr, sizeof command,
                          nullptr, &command) != noErr)
        return eventNotHandledErr;
    switch (command.commandID) {
    case kDismiss:
        if (isNeverAgainTicked())
            writeLastNoticeDate(kNever);
        axReqCancel();
        return noErr;
    case kOpenSettings:
        axReqCancel();
        openAccessSettings();
        return noErr;
    case kSwitchOn:
        enableAXAPI(openAccessSettings);
        axReqCancel();
        return noErr;
    default:
        return eventNotHandledErr;
    }
}

/// The system's answer has come.
void accessTold() {
    if (noticeWindow && AXAPIEnabled()) {
        if (isNoticeDoubtful)
            giveDayBack();
        axReqCancel();
    }
    isNoticeDoubtful = false;
}

void timeup(EventLoopTimerRef, void*) {
    axReqCancel();
}

bool createNoticeWindow(CFBundle* bundle, const CFString* windowName) {
    IBNibRef nib = nullptr;
    const OSStatus found = bundle ? CreateNibReferenceWithCFBundle(bundle, CFSTR("axreq"), &nib)
                                  : CreateNibReference(CFSTR("axreq"), &nib);
    if (found != noErr)
        return false;
    const bool created = CreateWindowFromNib(nib, windowName, &noticeWindow) == noErr;
    if (created) {
        constexpr EventTypeSpec kType{kEventClassCommand, kEventCommandProcess};
        InstallEventHandler(GetWindowEventTarget(noticeWindow), NewEventHandlerUPP(windce), 1,
                            &kType, nullptr, nullptr);
        constexpr EventTypeSpec kStirs[] = {{kEventClassKeyboard, kEventRawKeyDown},
                                            {kEventClassMouse, kEventMouseDown}};
        InstallEventHandler(GetWindowEventTarget(noticeWindow), NewEventHandlerUPP(stirred),
                            std::size(kStirs), kStirs, nullptr, nullptr);
        InstallEventLoopTimer(GetMainEventLoop(), kSecondsShown, 0, NewEventLoopTimerUPP(timeup),
                              nullptr, &noticeTimer);
        noticeBundle = CFRef<CFBundle>::retain(bundle);
    }
    DisposeNibReference(nib);
    return created;
}

} // namespace

void axReqCheckAXEnabled(CFBundle* bundle, WindowRef parent) {
    if (noticeWindow || AXAPIEnabled())
        return;
    const SInt32 day = today();
    const CFIndex lastDay =
        CFPreferencesGetAppIntegerValue(lastNoticeKey(), kAgentBundleID, nullptr);
    if (lastDay != 0 && day <= lastDay)
        return;
    isNoticeDoubtful = !isAXAPIEnabledKnown();
    dayBefore = CFPreferencesCopyAppValue(lastNoticeKey(), kAgentBundleID);
    setAXAPIEnabledListener(accessTold);
    // First, so that a notice that can't be shown isn't tried again before tomorrow.
    writeLastNoticeDate(day);

    if (!createNoticeWindow(bundle, parent ? CFSTR("sheet") : CFSTR("window")))
        return;
    if (parent) {
        parentWindow = parent;
        ShowSheetWindow(noticeWindow, parent);
    } else {
        ShowWindow(noticeWindow);
    }
    SelectWindow(noticeWindow);
}

void axReqCancel() {
    if (noticeTimer)
        RemoveEventLoopTimer(noticeTimer);
    noticeTimer = nullptr;
    if (!noticeWindow)
        return;
    if (parentWindow) {
        HideSheetWindow(noticeWindow);
        SelectWindow(parentWindow);
        parentWindow = nullptr;
    }
    DisposeWindow(noticeWindow);
    noticeWindow = nullptr;
}
