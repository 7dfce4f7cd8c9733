// SPDX-License-Identifier: MIT
#include "src/record/palactions.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/files/proputil.h"

#include <algorithm>
#include <iterator>

namespace {

/// The titles in our own agent's list, which have translations. Any others are shown as they are.
constexpr const char* kOwnTitles[] = {
    // clang-format off
    LOCALIZABLE("Actions", "Empty slot"),
    LOCALIZABLE("Actions", "Type"),
    LOCALIZABLE("Actions", "Scroll"),
    LOCALIZABLE("Actions", "Pg up"),
    LOCALIZABLE("Actions", "Pg down"),
    LOCALIZABLE("Actions", "Back"),
    LOCALIZABLE("Actions", "Forward"),
    LOCALIZABLE("Actions", "Return"),
    LOCALIZABLE("Actions", "Tab"),
    LOCALIZABLE("Actions", "Escape"),
    LOCALIZABLE("Actions", "Delete"),
    LOCALIZABLE("Actions", "Space"),
    LOCALIZABLE("Actions", "Cut"),
    LOCALIZABLE("Actions", "Copy"),
    LOCALIZABLE("Actions", "Paste"),
    LOCALIZABLE("Actions", "Undo"),
    LOCALIZABLE("Actions", "Up"),
    LOCALIZABLE("Actions", "Down"),
    LOCALIZABLE("Actions", "Left"),
    LOCALIZABLE("Actions", "Right"),
    LOCALIZABLE("Actions", "Click"),
    LOCALIZABLE("Actions", "Double"),
    LOCALIZABLE("Actions", "Drag"),
    LOCALIZABLE("Actions", "R-click"),
    LOCALIZABLE("Actions", "Hold"),
    LOCALIZABLE("Actions", "Move"),
    LOCALIZABLE("Actions", "Shift"),
    LOCALIZABLE("Actions", "Control"),
    LOCALIZABLE("Actions", "Menus"),
    LOCALIZABLE("Actions", "Apps"),
    LOCALIZABLE("Actions", "Windows"),
    LOCALIZABLE("Actions", "Close"),
    LOCALIZABLE("Actions", "Desktop"),
    LOCALIZABLE("Actions", "Louder"),
    LOCALIZABLE("Actions", "Quieter"),
    LOCALIZABLE("Actions", "Mute"),
    LOCALIZABLE("Actions", "Faster"),
    LOCALIZABLE("Actions", "Slower"),
    LOCALIZABLE("Actions", "Pause"),
    LOCALIZABLE("Actions", "Again"),
    // clang-format on
};

CFBundle* (*findBundle)() = nullptr;
CFRef<const CFArray> actionList; ///< null until read
CFRef<const CFString> actionTitles[kNumActions];

/// The action's entry in the list. Null when it has none.
const CFDictionary* getDictForAction(UInt8 action) {
    if (action >= kNumActions)
        return nullptr;
    if (!actionList) {
        const auto list =
            propUtilReadResourceFile(palutilBundle(), CFSTR("btn_icons_std"), CFArrayGetTypeID());
        actionList = CFRef<const CFArray>::retain(dynamicCFCast<CFArray>(list.get()));
    }
    if (!actionList)
        return nullptr;
    return dynamicCFCast<CFDictionary>(CFArrayGetValueAtIndex(actionList.get(), action));
}

} // namespace

void palutilUseBundle(CFBundle* (*bundle)()) {
    findBundle = bundle;
}

const CFBundle* palutilBundle() {
    return findBundle ? findBundle() : nullptr;
}

const CFString* palutilActionTitle(UInt8 action) {
    if (action >= kNumActions)
        return nullptr;
    CFRef<const CFString>& title = actionTitles[action];
    if (!title)
        if (const CFDictionary* entry = getDictForAction(action))
            title = propUtilGetRetainedDictString(entry, CFSTR("title"));
    return title.get();
}

CFRef<const CFString> palutilCopyShownTitle(UInt8 action) {
    const CFString* title = palutilActionTitle(action);
    const std::string text = title ? toUTF8(title) : "";
    const auto* own = std::ranges::find(kOwnTitles, text);
    return own == std::end(kOwnTitles) ? CFRef<const CFString>::retain(title)
                                       : createFromUTF8(localized("Actions", *own));
}

std::string palutilActionName(UInt8 action) {
    const auto title = palutilCopyShownTitle(action);
    return title ? toUTF8(title.get())
           : action == kEmptyAction
               ? localized("Palette", "Empty slot")
               : filled(localized("Palette", "Action %1"), {std::to_string(action)});
}

const CFString* palutilActionIconName(UInt8 action) {
    const CFDictionary* entry = getDictForAction(action);
    return entry ? propUtilGetDictString(entry, CFSTR("icon")) : nullptr;
}

void palutilForgetActions() {
    std::fill_n(actionTitles, kNumActions, nullptr);
    actionList = nullptr;
}
