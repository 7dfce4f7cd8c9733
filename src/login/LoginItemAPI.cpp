// SPDX-License-Identifier: MIT
#include "src/login/LoginItemAPI.h"

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFPreferences.h"

#include <cstdio>
#include <cstring>

namespace {

constexpr CFIndex kLongestPath = 1024;

char ReturnCharacterArray[kLongestPath + 1];

const CFString* domain() {
    return CFSTR("loginwindow");
}

const CFString* listKey() {
    return CFSTR("AutoLaunchedApplicationDictionary");
}

/// The host for the user. Null for a user that is refused.
const CFString* hostOf(const CFString* user) {
    if (user == kCFPreferencesCurrentUser)
        return kCFPreferencesAnyHost;
    return user == kCFPreferencesAnyUser ? kCFPreferencesCurrentHost : nullptr;
}

/// The stored value of the list. Null when there is none, or the user is refused.
CFRef<const CFType> copyValue(const CFString* user) {
    const CFString* host = hostOf(user);
    return host ? CFPreferencesCopyValue(listKey(), domain(), user, host) : nullptr;
}

bool storeList(const CFString* user, const CFArray* list) {
    const CFString* host = hostOf(user);
    CFPreferencesSetValue(listKey(), list, domain(), user, host);
    return CFPreferencesSynchronize(domain(), user, host);
}

const char* copyPath(const CFDictionary* item) {
    const auto* path = dynamicCFCast<CFString>(CFDictionaryGetValue(item, CFSTR("Path")));
    return path && CFStringGetCString(path, ReturnCharacterArray, sizeof ReturnCharacterArray,
                                      kCFStringEncodingASCII)
               ? ReturnCharacterArray
               : nullptr;
}

/// The last non-empty piece of the path, or null.
const char* lastPiece(char* path) {
    const char* last = nullptr;
    for (char* piece = std::strtok(path, "/"); piece; piece = std::strtok(nullptr, "/"))
        last = piece;
    return last;
}

const char* copyHide(const CFDictionary* item) {
    const auto* hide = dynamicCFCast<CFBoolean>(CFDictionaryGetValue(item, CFSTR("Hide")));
    if (!hide)
        return nullptr;
    return std::strcpy(ReturnCharacterArray, CFBooleanGetValue(hide) ? "true" : "false");
}

} // namespace

CFIndex GetCountOfLoginItems(const CFString* user) {
    const auto value = copyValue(user);
    const auto* list = dynamicCFCast<CFArray>(value.get());
    return list ? CFArrayGetCount(list) : 0;
}

const char* ReturnLoginItemPropertyAtIndex(const CFString* user, int property, CFIndex index) {
    const auto value = copyValue(user);
    const auto* list = dynamicCFCast<CFArray>(value.get());
    const auto* item =
        list ? dynamicCFCast<CFDictionary>(CFArrayGetValueAtIndex(list, index)) : nullptr;
    if (!item)
        return nullptr;
    switch (property) {
    case kLoginItemFullPath:
        return copyPath(item);
    case kLoginItemExecutableName:
        return copyPath(item) ? lastPiece(ReturnCharacterArray) : nullptr;
    case kLoginItemHide:
        return copyHide(item);
    default:
        return nullptr;
    }
}

bool RemoveLoginItemAtIndex(const CFString* user, CFIndex index) {
    if (index < 0 || index >= GetCountOfLoginItems(user))
        return false;
    const auto value = copyValue(user);
    const auto list = CFArrayCreateMutableCopy(dynamicCFCast<CFArray>(value.get()));
    CFArrayRemoveValueAtIndex(list.get(), index);
    return storeList(user, list.get());
}

bool AddLoginItemWithPropertiesToUser(const CFString* user, const char* path, UInt8 hide) {
    const auto pathText = CFStringCreateWithCString(path, kCFStringEncodingASCII);
    if (!hostOf(user) || !pathText)
        return false;
    const auto value = copyValue(user);
    const auto* stored = dynamicCFCast<CFArray>(value.get());
    if (value && !stored)
        return false;
    const auto list = stored ? CFArrayCreateMutableCopy(stored) : CFArrayCreateMutable();
    const auto item = CFDictionaryCreateMutable();
    CFDictionarySetValue(item.get(), CFSTR("Hide"), hide == 1 ? kCFBooleanTrue : kCFBooleanFalse);
    CFDictionarySetValue(item.get(), CFSTR("Path"), pathText.get());
    CFArrayAppendValue(list.get(), item.get());
    return storeList(user, list.get());
}

bool PrintNumberOfLoginItems(const CFString* user) {
    if (!hostOf(user))
        return false;
    std::printf("The number of LoginItems is: %d", static_cast<int>(GetCountOfLoginItems(user)));
    return true;
}

bool PrintOutAllLoginItems(const CFString* user) {
    if (!hostOf(user))
        return false;
    const CFIndex count = GetCountOfLoginItems(user);
    if (count == 0)
        std::puts("LoginItems are Empty (i.e. there are no LoginItems)");
    for (CFIndex index = 0; index < count; ++index) {
        std::printf("LoginItem Index %d:\n", static_cast<int>(index));
        if (!PrintOutLoginItemAtIndex(user, index))
            return false;
    }
    return true;
}

bool PrintOutLoginItemAtIndex(const CFString* user, CFIndex index) {
    static constexpr struct {
        LoginItemProperty property;
        const char* format;
    } kLines[] = {
        {kLoginItemFullPath, "\tFull path to App: %s\n"},
        {kLoginItemHide, "\tHide Info:        %s\n"},
        {kLoginItemExecutableName, "\tExecutable Name:  %s\n"},
    };

    for (const auto& [property, format] : kLines) {
        const char* text = ReturnLoginItemPropertyAtIndex(user, property, index);
        if (!text)
            return false;
        std::printf(format, text);
    }
    return true;
}
