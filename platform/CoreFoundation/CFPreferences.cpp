// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPreferences.h"

#include "platform/CoreFoundation/PreferencesMerging.h"
#include "platform/CoreFoundation/StoredValues.h"
#include "platform/CoreFoundation/detail/PreferencesFiles.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <optional>

const CFString* const kCFPreferencesCurrentUser = CFSTR("kCFPreferencesCurrentUser");
const CFString* const kCFPreferencesAnyUser = CFSTR("kCFPreferencesAnyUser");
const CFString* const kCFPreferencesCurrentHost = CFSTR("kCFPreferencesCurrentHost");
const CFString* const kCFPreferencesAnyHost = CFSTR("kCFPreferencesAnyHost");
const CFString* const kCFPreferencesAnyApplication = CFSTR(".GlobalPreferences");

namespace {

const CFType* everyonesValue(const PreferencesFiles& files, const CFString* key) {
    for (const PreferencesDomain& domain : files.everyones)
        if (const CFType* value = domain.value(key))
            return value;
    return nullptr;
}

const CFType* appValue(const CFString* key, const CFString* domain) {
    const PreferencesFiles* files = preferencesFiles(domain);
    if (!files)
        return nullptr;
    const CFType* own = files->own.value(key);
    return own ? own : everyonesValue(*files, key);
}

/// The file that the user's values are written to. Null when there is none.
PreferencesDomain* writtenDomain(const CFString* name, const CFString* user) {
    PreferencesFiles* files = preferencesFiles(name);
    if (files && user == kCFPreferencesCurrentUser)
        return &files->own;
    return files && user == kCFPreferencesAnyUser ? &files->everyones.front() : nullptr;
}

template <class Value>
Value report(std::optional<Value> value, bool* exists) {
    if (exists)
        *exists = value.has_value();
    return value.value_or(Value());
}

} // namespace

CFRef<const CFType> CFPreferencesCopyAppValue(const CFString* key, const CFString* domain) {
    return CFRef<const CFType>::retain(appValue(key, domain));
}

bool CFPreferencesGetAppBooleanValue(const CFString* key, const CFString* domain, bool* exists) {
    return report(booleanFromValue(appValue(key, domain)), exists);
}

CFIndex CFPreferencesGetAppIntegerValue(const CFString* key, const CFString* domain, bool* exists) {
    return report(integerFromValue(appValue(key, domain)), exists);
}

void CFPreferencesSetAppValue(const CFString* key, const CFType* value, const CFString* domain) {
    CFPreferencesSetValue(key, value, domain, kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
}

bool CFPreferencesAppSynchronize(const CFString* domain) {
    return CFPreferencesSynchronize(domain, kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
}

CFRef<const CFType> CFPreferencesCopyValue(const CFString* key, const CFString* domain,
                                           const CFString* user, const CFString*) {
    const PreferencesFiles* files = preferencesFiles(domain);
    if (files && user == kCFPreferencesCurrentUser)
        return CFRef<const CFType>::retain(files->own.value(key));
    return CFRef<const CFType>::retain(
        files && user == kCFPreferencesAnyUser ? everyonesValue(*files, key) : nullptr);
}

void CFPreferencesSetValue(const CFString* key, const CFType* value, const CFString* domain,
                           const CFString* user, const CFString*) {
    if (PreferencesDomain* found = writtenDomain(domain, user))
        found->setValue(key, value);
}

bool CFPreferencesSynchronize(const CFString* domain, const CFString* user, const CFString*) {
    PreferencesDomain* found = writtenDomain(domain, user);
    return found && found->synchronize();
}

void preferencesGiveWay(const CFString* key, const CFType* seen, const CFString* domain) {
    if (PreferencesDomain* found = writtenDomain(domain, kCFPreferencesCurrentUser))
        found->giveWay(key, seen);
}
