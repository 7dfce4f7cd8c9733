// SPDX-License-Identifier: MIT
#include "src/login/launch.h"

namespace {

ControlRef uiLaunchForThisUserCheckbox = nullptr;
ControlRef uiLaunchForAllUsersCheckbox = nullptr;
CFRef<const CFURL> uiAppURL;
EventHandlerRef uiLaunchHandler = nullptr;
EventHandlerRef uiAllUsersHandler = nullptr;
EventHandlerUPP uiCtlCallback = nullptr;

void showState(ControlRef checkbox, bool checked, bool enabled, bool shown) {
    SetControl32BitValue(checkbox, checked);
    if (enabled)
        EnableControl(checkbox);
    else
        DisableControl(checkbox);
    if (shown)
        ShowControl(checkbox);
    else
        HideControl(checkbox);
}

void uiUpdateCtls() {
    if (!uiLaunchForThisUserCheckbox)
        return;
    const LaunchUIState state =
        launchGetCurrentUIStateForApp(uiAppURL.get(), uiLaunchForAllUsersCheckbox != nullptr);
    showState(uiLaunchForThisUserCheckbox, state & kLaunchThisUserChecked,
              state & kLaunchThisUserEnabled, true);
    if (uiLaunchForAllUsersCheckbox)
        showState(uiLaunchForAllUsersCheckbox, state & kLaunchAllUsersChecked,
                  state & kLaunchAllUsersEnabled, state & kLaunchAllUsersShown);
}

OSStatus uiCtlProc(EventHandlerCallRef, EventRef event, void*) {
    ControlRef control = nullptr;
    if (GetEventParameter(event, kEventParamDirectObject, typeControlRef, nullptr, sizeof control,
                          nullptr, &control) != noErr ||
        !control ||
        (control != uiLaunchForThisUserCheckbox && control != uiLaunchForAllUsersCheckbox))
        return eventNotHandledErr;
    launchSetAppIsAutoLaunched(uiAppURL.get(), GetControl32BitValue(control) != 0,
                               control == uiLaunchForAllUsersCheckbox);
    uiUpdateCtls();
    return noErr;
}

EventHandlerRef installHandler(ControlRef checkbox) {
    constexpr EventTypeSpec kType{kEventClassControl, kEventControlHit};
    EventHandlerRef handler = nullptr;
    InstallEventHandler(GetControlEventTarget(checkbox), uiCtlCallback, 1, &kType, nullptr,
                        &handler);
    return handler;
}

void removeHandler(EventHandlerRef& handler) {
    if (handler)
        RemoveEventHandler(handler);
    handler = nullptr;
}

} // namespace

void launchBeginUI(const CFURL* appURL, ControlRef thisUserCheckbox, ControlRef allUsersCheckbox) {
    launchEndUI();
    auto url = getRetainedAppURL(appURL);
    if (!thisUserCheckbox || !url)
        return;
    uiAppURL = std::move(url);
    uiLaunchForThisUserCheckbox = thisUserCheckbox;
    uiLaunchForAllUsersCheckbox = allUsersCheckbox;
    if (!uiCtlCallback)
        uiCtlCallback = NewEventHandlerUPP(uiCtlProc);
    uiLaunchHandler = installHandler(thisUserCheckbox);
    if (allUsersCheckbox)
        uiAllUsersHandler = installHandler(allUsersCheckbox);
    uiUpdateCtls();
}

void launchUpdateUI() {
    uiUpdateCtls();
}

void launchEndUI() {
    removeHandler(uiLaunchHandler);
    removeHandler(uiAllUsersHandler);
    uiAppURL = nullptr;
    uiLaunchForThisUserCheckbox = uiLaunchForAllUsersCheckbox = nullptr;
}
