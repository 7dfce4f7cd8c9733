// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/detail/PreferencesDomain.h"

#include "platform/CoreFoundation/detail/FileLock.h"
#include "platform/CoreFoundation/detail/FileReading.h"
#include "platform/CoreFoundation/detail/FileReplacement.h"
#include "platform/CoreFoundation/detail/PropertyListXML.h"
#include "platform/CoreFoundation/detail/TextEncoding.h"

#include <cerrno>
#include <filesystem>
#include <unistd.h>

namespace {

unsigned fileMode(PreferencesDomain::Readers readers) {
    return readers == PreferencesDomain::Readers::ThisUser ? 0600 : 0644;
}

unsigned folderMode(PreferencesDomain::Readers readers) {
    return readers == PreferencesDomain::Readers::ThisUser ? 0700 : 0755;
}

/// Writes the document to a file beside the target and puts it in place. With `aside`, the old file
/// is kept; `*aside` receives its new name.
FileOutcome replaceFile(const std::string& target, const std::string& document, unsigned mode,
                        std::string* aside = nullptr) {
    if (document.empty())
        return {FileTrouble::TooLarge, target};
    PendingFile file(target, document, mode);
    if (file.error() != 0)
        return outcomeOf(file.error(), target);
    if (aside && (*aside = keepAside(target)).empty())
        return outcomeOf(errno, target);
    const int error = file.putInPlace();
    return error != 0 ? outcomeOf(error, target) : FileOutcome{FileTrouble::None, target};
}

/// A deep copy, which later changes of the value don't affect. Null when a property list can't hold
/// the value.
CFRef<const CFType> deepCopy(const CFType* value) {
    if (const auto* string = dynamicCFCast<CFString>(value)) { // nearly always
        if (!isXMLText(string->text()))
            return nullptr;
        if (typeid(*value) == typeid(CFString))
            return CFRef<const CFType>::retain(value); // it never changes
        return CFRef<CFString>::adopt(new CFString(string->text()));
    }
    // Inside a list, since a domain is one level above it.
    const CFArray wrapped({CFRef<const CFType>::retain(value)});
    const std::string document = propertyListToXML(&wrapped);
    const auto copy = document.empty() ? nullptr : readXMLPropertyList(document);
    const auto* list = dynamicCFCast<CFArray>(copy.get());
    return list ? list->items().front() : nullptr;
}

} // namespace

PreferencesDomain::PreferencesDomain(std::string path, Readers readers)
    : path_(std::move(path)), readers_(readers), stored_(CFDictionaryCreateMutable()) {
    refresh();
}

const CFType* PreferencesDomain::value(const CFString* key) const {
    const auto change = changes_.find(key->text());
    return change == changes_.end() ? CFDictionaryGetValue(stored_.get(), key)
                                    : change->second.value.get();
}

void PreferencesDomain::setValue(const CFString* key, const CFType* newValue) {
    auto storable = newValue ? deepCopy(newValue) : nullptr;
    if ((storable || !newValue) && isXMLText(key->text()))
        changes_.insert_or_assign(key->text(), Change{std::move(storable), false, nullptr});
}

void PreferencesDomain::giveWay(const CFString* key, const CFType* seen) {
    const auto change = changes_.find(key->text());
    if (change == changes_.end())
        return;
    change->second.givesWay = true;
    change->second.seen = CFRef<const CFType>::retain(seen);
}

bool PreferencesDomain::synchronize() {
    if (!isUnsaved()) {
        const FileState state = refresh();
        return state == FileState::Sound || state == FileState::Missing;
    }
    saved_ = save();
    return saved_.trouble == FileTrouble::None;
}

FileOutcome PreferencesDomain::save() {
    if (const int error = makeFolders(folder(), folderMode(readers_)))
        return outcomeOf(error, folder());
    const FileLock lock(path_ + ".lock", fileMode(readers_));
    if (lock.error() != 0)
        return outcomeOf(lock.error(), path_ + ".lock");
    return write(refresh());
}

/// Takes in the file's content if it has changed.
PreferencesDomain::FileState PreferencesDomain::refresh() {
    const FileContents file = readRegularFile(path_, kPropertyListMaxSize);
    switch (file.status) {
    case FileStatus::Unreadable:
        return note(FileState::Unreadable, file.error);
    case FileStatus::TooLarge:
        return note(FileState::Damaged);
    case FileStatus::Missing:
        stored_ = CFDictionaryCreateMutable();
        content_ = nullptr;
        return note(FileState::Missing);
    case FileStatus::Read:
        break;
    }
    if (CFEqual(file.data.get(), content_.get()))
        return note(FileState::Sound);
    const auto root = CFPropertyListCreateFromXMLData(file.data.get());
    const auto* dictionary = dynamicCFCast<CFDictionary>(root.get());
    if (!dictionary)
        return note(FileState::Damaged);
    stored_ = CFRef<const CFDictionary>::retain(dictionary);
    content_ = file.data;
    return note(FileState::Sound);
}

/// Notes what the file's state means for the user. `error` is the errno of an unreadable file.
PreferencesDomain::FileState PreferencesDomain::note(FileState state, int error) {
    if (state == FileState::Unreadable)
        loaded_ = error != 0 ? outcomeOf(error, path_) : FileOutcome{FileTrouble::InTheWay, path_};
    else if (state == FileState::Damaged)
        loaded_ = {FileTrouble::Damaged, path_};
    else if (!loaded_.isKeptAside)
        loaded_ = {FileTrouble::None, path_};
    return state;
}

/// The stored values with the changes applied.
CFRef<const CFDictionary> PreferencesDomain::merged() const {
    CFDictionary::Items items = stored_->items();
    for (const auto& [key, change] : changes_) {
        const auto stored = stored_->items().find(key);
        if (change.givesWay && stored != stored_->items().end() &&
            !CFEqual(stored->second.get(), change.seen.get()))
            continue;
        if (change.value)
            items.insert_or_assign(key, change.value);
        else
            items.erase(key);
    }
    return CFRef<CFDictionary>::adopt(new CFDictionary(std::move(items)));
}

/// Called under the lock, with the result of `refresh`.
FileOutcome PreferencesDomain::write(FileState state) {
    if (state == FileState::Unreadable)
        return loaded_;
    CFRef<const CFDictionary> values = merged();
    if (state == FileState::Sound && CFEqual(values.get(), stored_.get())) {
        changes_.clear();
        return {FileTrouble::None, path_};
    }
    const std::string document = propertyListToXML(values.get());
    const std::string target = resolveLinks(path_);
    const bool isDamaged = state == FileState::Damaged;
    std::string aside;
    FileOutcome outcome =
        replaceFile(target, document, fileMode(readers_), isDamaged ? &aside : nullptr);
    if (!aside.empty())
        loaded_ = {FileTrouble::Damaged, aside, true};
    if (outcome.trouble != FileTrouble::None)
        return outcome;
    stored_ = std::move(values);
    content_ = CFDataCreate(reinterpret_cast<const UInt8*>(document.data()),
                            static_cast<CFIndex>(document.size()));
    changes_.clear();
    return outcome;
}

FileOutcome PreferencesDomain::saveOutlook() const {
    std::string above = folder();
    while (above.rfind('/') != 0 && access(above.c_str(), F_OK) != 0 && errno == ENOENT)
        above.erase(above.rfind('/'));
    std::error_code error;
    if (!std::filesystem::is_directory(above, error))
        return outcomeOf(error ? error.value() : ENOTDIR, above);
    return access(above.c_str(), W_OK | X_OK) == 0 ? FileOutcome{FileTrouble::None, path_}
                                                   : outcomeOf(errno, above);
}

FileOutcome PreferencesDomain::saveCopy(const std::string& path) const {
    std::string target = path;
    if (const int error = resolveOwnLinks(target))
        return outcomeOf(error, path);
    return replaceFile(target, propertyListToXML(merged().get()), fileMode(readers_));
}
