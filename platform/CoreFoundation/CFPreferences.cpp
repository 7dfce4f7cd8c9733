#include "platform/CoreFoundation/CFPreferences.h"

#include "platform/CoreFoundation/detail/PreferencesDomain.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"

#include <charconv>
#include <map>
#include <optional>
#include <strings.h>

const CFString* const kCFPreferencesCurrentUser = CFSTR("kCFPreferencesCurrentUser");
const CFString* const kCFPreferencesAnyUser = CFSTR("kCFPreferencesAnyUser");
const CFString* const kCFPreferencesCurrentHost = CFSTR("kCFPreferencesCurrentHost");
const CFString* const kCFPreferencesAnyHost = CFSTR("kCFPreferencesAnyHost");
const CFString* const kCFPreferencesAnyApplication = CFSTR(".GlobalPreferences");

namespace {

using Readers = PreferencesDomain::Readers;
using Domains = std::map<std::u16string, PreferencesDomain>;

Domains& domainsOf(Readers readers) {
    static auto& domains = *new std::map<Readers, Domains>; // kept until the process is gone
    return domains[readers];
}

PreferencesDomain* findDomain(const CFString* name, Readers readers) {
    Domains& domains = domainsOf(readers);
    const auto known = domains.find(name->text());
    if (known != domains.end())
        return &known->second;

    const auto fileName = encodeText(name->text(), kCFStringEncodingUTF8);
    if (!fileName || fileName->empty() ||
        fileName->find_first_of(std::string_view("/\0", 2)) != std::string::npos)
        return nullptr;
    const std::string folder = readers == Readers::ThisUser ? xdgConfigHome() : xdgSystemConfig();
    const std::string path = folder + "/Preferences/" + *fileName + ".plist";
    return &domains.try_emplace(name->text(), path, readers).first->second;
}

PreferencesDomain* findDomain(const CFString* name, const CFString* user) {
    if (user == kCFPreferencesCurrentUser)
        return findDomain(name, Readers::ThisUser);
    return user == kCFPreferencesAnyUser ? findDomain(name, Readers::Everyone) : nullptr;
}

const CFType* valueIn(const PreferencesDomain* domain, const CFString* key) {
    return domain ? domain->value(key) : nullptr;
}

const CFType* appValue(const CFString* key, const CFString* domain) {
    const CFType* own = valueIn(findDomain(domain, Readers::ThisUser), key);
    return own ? own : valueIn(findDomain(domain, Readers::Everyone), key);
}

/// The text of a string of ASCII characters, else none.
std::optional<std::string> asciiText(const CFType* value) {
    const auto* string = dynamicCFCast<CFString>(value);
    return string ? encodeText(string->text(), kCFStringEncodingASCII) : std::nullopt;
}

std::optional<bool> readBoolean(const CFType* value) {
    if (const auto* boolean = dynamicCFCast<CFBoolean>(value))
        return boolean->value();
    if (const auto* number = dynamicCFCast<CFNumber>(value))
        return number->doubleValue() != 0;
    const auto text = asciiText(value).value_or("");
    for (const char* yes : {"yes", "true"}) {
        if (strcasecmp(text.c_str(), yes) == 0)
            return true;
    }
    for (const char* no : {"no", "false"}) {
        if (strcasecmp(text.c_str(), no) == 0)
            return false;
    }
    return std::nullopt;
}

std::optional<CFIndex> readInteger(const CFType* value) {
    if (const auto* number = dynamicCFCast<CFNumber>(value))
        return number->integerValue();
    const auto text = asciiText(value).value_or("");
    const bool plus = text.starts_with('+') && !text.starts_with("+-");
    const char* const last = text.data() + text.size();
    CFIndex integer = 0;
    const auto [end, error] = std::from_chars(text.data() + (plus ? 1 : 0), last, integer);
    return error == std::errc() && end == last ? std::optional(integer) : std::nullopt;
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
    return report(readBoolean(appValue(key, domain)), exists);
}

CFIndex CFPreferencesGetAppIntegerValue(const CFString* key, const CFString* domain, bool* exists) {
    return report(readInteger(appValue(key, domain)), exists);
}

void CFPreferencesSetAppValue(const CFString* key, const CFType* value, const CFString* domain) {
    CFPreferencesSetValue(key, value, domain, kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
}

bool CFPreferencesAppSynchronize(const CFString* domain) {
    return CFPreferencesSynchronize(domain, kCFPreferencesCurrentUser, kCFPreferencesAnyHost);
}

CFRef<const CFType> CFPreferencesCopyValue(const CFString* key, const CFString* domain,
                                           const CFString* user, const CFString*) {
    return CFRef<const CFType>::retain(valueIn(findDomain(domain, user), key));
}

void CFPreferencesSetValue(const CFString* key, const CFType* value, const CFString* domain,
                           const CFString* user, const CFString*) {
    if (PreferencesDomain* found = findDomain(domain, user))
        found->setValue(key, value);
}

bool CFPreferencesSynchronize(const CFString* domain, const CFString* user, const CFString*) {
    PreferencesDomain* found = findDomain(domain, user);
    return found && found->synchronize();
}
