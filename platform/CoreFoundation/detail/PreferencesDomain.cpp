#include "platform/CoreFoundation/detail/PreferencesDomain.h"

#include "platform/CoreFoundation/detail/FileReading.h"
#include "platform/CoreFoundation/detail/FileReplacement.h"

namespace {

unsigned fileMode(PreferencesDomain::Readers readers) {
    return readers == PreferencesDomain::Readers::ThisUser ? 0600 : 0644;
}

unsigned folderMode(PreferencesDomain::Readers readers) {
    return readers == PreferencesDomain::Readers::ThisUser ? 0700 : 0755;
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

PreferencesDomain::PreferencesDomain(std::string path, Readers readers)
    : path_(std::move(path)), readers_(readers), stored_(CFDictionaryCreateMutable()) {
    refresh();
}

const CFType* PreferencesDomain::value(const CFString* key) const {
    const auto change = changes_.find(key->text());
    return change == changes_.end() ? CFDictionaryGetValue(stored_.get(), key)
                                    : change->second.get();
}

void PreferencesDomain::setValue(const CFString* key, const CFType* newValue) {
    if (CFEqual(newValue, value(key)))
        return;
    auto storable = newValue ? storableValue(key, newValue) : nullptr;
    if (storable || !newValue)
        changes_.insert_or_assign(key->text(), std::move(storable));
}

bool PreferencesDomain::synchronize() {
    if (changes_.empty()) {
        const FileState state = refresh();
        return state == FileState::Sound || state == FileState::Missing;
    }
    if (!CFMakeFolders(path_.substr(0, path_.rfind('/')), folderMode(readers_)))
        return false;
    const CFFileLock lock(path_ + ".lock", fileMode(readers_));
    return lock.isHeld() && write(refresh());
}

/// Takes the file's content in, unless it is the one that is known.
PreferencesDomain::FileState PreferencesDomain::refresh() {
    const CFFileContents file = CFReadRegularFile(path_, kCFPropertyListMaxSize);
    switch (file.status) {
    case CFFileStatus::Unreadable:
        return FileState::Unreadable;
    case CFFileStatus::TooLarge:
        return FileState::Damaged;
    case CFFileStatus::Missing:
        stored_ = CFDictionaryCreateMutable();
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
    stored_ = CFRef<const CFDictionary>::retain(dictionary);
    content_ = file.data;
    return FileState::Sound;
}

/// The stored values with the changes in them.
CFRef<const CFDictionary> PreferencesDomain::merged() const {
    CFDictionary::Items items = stored_->items();
    for (const auto& [key, change] : changes_) {
        if (change)
            items.insert_or_assign(key, change);
        else
            items.erase(key);
    }
    return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
}

/// Called under the lock, with what `refresh` just found.
bool PreferencesDomain::write(FileState state) {
    CFRef<const CFDictionary> values = merged();
    const std::string document = CFPropertyListToXML(values.get());
    if (state == FileState::Unreadable || document.empty())
        return false;
    const std::string target = CFResolveLinks(path_);
    CFPendingFile file(target, document, fileMode(readers_));
    if (!file.isWritten() || (state == FileState::Damaged && !CFKeepAside(target)) ||
        !file.putInPlace())
        return false;
    stored_ = std::move(values);
    content_ = CFDataCreate(reinterpret_cast<const UInt8*>(document.data()),
                            static_cast<CFIndex>(document.size()));
    changes_.clear();
    return true;
}
