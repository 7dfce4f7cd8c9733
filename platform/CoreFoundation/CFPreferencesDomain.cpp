#include "platform/CoreFoundation/CFPreferencesDomain.h"

#include "platform/CoreFoundation/CFFileReading.h"
#include "platform/CoreFoundation/CFFileReplacement.h"

namespace {

unsigned fileMode(CFPreferencesDomain::Readers readers) {
    return readers == CFPreferencesDomain::Readers::ThisUser ? 0600 : 0644;
}

unsigned folderMode(CFPreferencesDomain::Readers readers) {
    return readers == CFPreferencesDomain::Readers::ThisUser ? 0700 : 0755;
}

/// The value as it can be stored under the key, or null.
CFRef<const CFType> storableValue(const CFString* key, const CFType* value) {
    const auto entry = CFDictionaryCreateMutable();
    CFDictionarySetValue(entry.get(), key, value);
    const auto copy = CFPropertyListCreateDeepCopy(entry.get());
    const auto* stored = dynamicCFCast<CFDictionary>(copy.get());
    return CFRef<const CFType>::retain(stored ? CFDictionaryGetValue(stored, key) : nullptr);
}

} // namespace

CFPreferencesDomain::CFPreferencesDomain(std::string path, Readers readers)
    : path_(std::move(path)), readers_(readers), values_(CFDictionaryCreateMutable()) {
    refresh();
}

const CFType* CFPreferencesDomain::value(const CFString* key) const {
    return CFDictionaryGetValue(values_.get(), key);
}

void CFPreferencesDomain::setValue(const CFString* key, const CFType* newValue) {
    if (CFEqual(newValue, value(key)))
        return;
    if (newValue) {
        const auto stored = storableValue(key, newValue);
        if (!stored)
            return;
        CFDictionarySetValue(values_.get(), key, stored.get());
    } else {
        CFDictionaryRemoveValue(values_.get(), key);
    }
    marked_.insert(key->text());
}

bool CFPreferencesDomain::synchronize() {
    if (marked_.empty()) {
        const FileState state = refresh();
        return state == FileState::Sound || state == FileState::Missing;
    }
    if (!CFMakeFolders(path_.substr(0, path_.rfind('/')), folderMode(readers_)))
        return false;
    const CFFileLock lock(path_ + ".lock", fileMode(readers_));
    return lock.isHeld() && write(refresh());
}

/// Takes the file's content in, unless it is the one that is known.
CFPreferencesDomain::FileState CFPreferencesDomain::refresh() {
    const CFFileContents file = CFReadRegularFile(path_, kCFPropertyListMaxSize);
    switch (file.status) {
    case CFFileStatus::Unreadable:
        return FileState::Unreadable;
    case CFFileStatus::TooLarge:
        return FileState::Damaged;
    case CFFileStatus::Missing:
        adopt({});
        content_ = nullptr;
        return FileState::Missing;
    case CFFileStatus::Read:
        break;
    }
    if (CFEqual(file.data.get(), content_.get()))
        return FileState::Sound;
    const auto root = CFPropertyListCreateFromXMLData(file.data.get());
    const auto* dictionary = dynamicCFCast<CFDictionary>(root.get());
    if (!dictionary)
        return FileState::Damaged;
    adopt(dictionary->items());
    content_ = file.data;
    return FileState::Sound;
}

/// `items` become the values, but for the marked keys.
void CFPreferencesDomain::adopt(CFDictionary::Items items) {
    for (const auto& key : marked_) {
        const auto set = values_->items().find(key);
        if (set == values_->items().end())
            items.erase(key);
        else
            items.insert_or_assign(key, set->second);
    }
    values_->items() = std::move(items);
}

/// Called under the lock, with what `refresh` just found.
bool CFPreferencesDomain::write(FileState state) {
    const std::string document = CFPropertyListToXML(values_.get());
    if (state == FileState::Unreadable || document.empty())
        return false;
    const std::string target = CFResolveLinks(path_);
    CFPendingFile file(target, document, fileMode(readers_));
    if (!file.isWritten() || (state == FileState::Damaged && !CFKeepAside(target)) ||
        !file.putInPlace())
        return false;
    content_ = CFDataCreate(reinterpret_cast<const UInt8*>(document.data()),
                            static_cast<CFIndex>(document.size()));
    marked_.clear();
    return true;
}
