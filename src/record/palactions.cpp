// SPDX-License-Identifier: MIT
#include "src/record/palactions.h"

#include "platform/CoreFoundation/Localization.h"
#include "src/files/proputil.h"

#include <algorithm>

namespace {

CFBundle* (*findBundle)() = nullptr;
CFRef<const CFArray> actionList; ///< null until read
CFRef<const CFString> actionTitles[kNumActions];

/// The action's entry in the list. Null when it has none.
const CFDictionary* getDictForAction(UInt8 action) {
    if (action >= kNumActions)
        return nullptr;
    if (!actionList) {
        const auto list = propUtilReadResourceFile(palutilBundle(), CFSTR("btn_icons_std"),
                                                   CFArrayGetTypeID());
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

std::string palutilActionName(UInt8 action) {
    const CFString* title = palutilActionTitle(action);
    return title ? toUTF8(title)
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
