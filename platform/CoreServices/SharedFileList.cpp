// SPDX-License-Identifier: MIT
#include "platform/CoreServices/SharedFileList.h"

#include "platform/CoreFoundation/CFBundle.h"
#include "platform/CoreFoundation/detail/FileReplacement.h"
#include "platform/CoreFoundation/detail/XDGFolders.h"
#include "platform/CoreServices/detail/AutostartEntry.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <set>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

const CFString* const kLSSharedFileListSessionLoginItems =
    CFSTR("kLSSharedFileListSessionLoginItems");
const CFString* const kLSSharedFileListGlobalLoginItems =
    CFSTR("kLSSharedFileListGlobalLoginItems");

const LSSharedFileListItem* const kLSSharedFileListItemLast = new LSSharedFileListItem({}, {});

namespace {

constexpr int kMostNames = 100;

bool isEarlier(const timespec& a, const timespec& b) {
    return a.tv_sec != b.tv_sec ? a.tv_sec < b.tv_sec : a.tv_nsec < b.tv_nsec;
}

/// When the directory entry itself was last changed. The epoch when there is none.
timespec changeTime(const std::string& path) {
    struct stat status {};

    return lstat(path.c_str(), &status) == 0 ? status.st_mtim : timespec{};
}

struct EntryFile {
    std::string path;
    timespec changed;
};

std::string fileName(const std::string& path) {
    return path.substr(path.rfind('/') + 1);
}

bool isAnythingAt(const std::string& path) {
    std::error_code error;
    return fs::exists(fs::symlink_status(path, error));
}

/// The *.desktop files of the folders, the last changed one last. Of equal names the first folder's
/// counts. False when a folder can't be read.
bool listEntryFiles(const std::vector<std::string>& folders, std::vector<EntryFile>& files) {
    std::error_code error;
    std::set<std::string> names;
    for (const std::string& folder : folders) {
        fs::directory_iterator each(folder, error);
        for (; !error && each != fs::directory_iterator(); each.increment(error)) {
            const std::string path = each->path();
            if (path.ends_with(".desktop") && names.insert(fileName(path)).second)
                files.push_back({path, changeTime(path)});
        }
        if (error && error != std::errc::no_such_file_or_directory)
            return false;
    }
    std::sort(files.begin(), files.end(), [](const EntryFile& a, const EntryFile& b) {
        if (isEarlier(a.changed, b.changed) || isEarlier(b.changed, a.changed))
            return isEarlier(a.changed, b.changed);
        return a.path < b.path;
    });
    return true;
}

/// Whether an entry for the application may be written there. It may when nothing is there, when
/// the entry starts this application, or when it started one of the same name and now starts
/// nothing. An entry that the user switched off, or that isn't for this desktop, stays.
bool isFree(const std::string& path, const std::string& application) {
    if (!isAnythingAt(path))
        return true;
    const auto entry = readAutostartEntry(path);
    return entry && !entry->isSwitchedOff && entry->onlyElsewhere.empty() && !entry->isNotHere &&
           (entry->application == application ||
            (!entry->isLive && isSameLoginApplication(entry->application, application)));
}

/// The application's entries that the user has switched off.
std::vector<std::string> switchedOffPaths(const std::vector<EntryFile>& files,
                                          const std::string& application) {
    std::vector<std::string> paths;
    for (const EntryFile& file : files)
        if (const auto entry = readAutostartEntry(file.path);
            entry && entry->isSwitchedOff &&
            isSameLoginApplication(entry->application, application))
            paths.push_back(file.path);
    return paths;
}

/// On which desktops a new entry starts the application: only where none among the files does. A
/// line of the entry, empty for all desktops.
std::string desktopsLine(const std::vector<EntryFile>& files, const std::string& application) {
    std::string desktops;
    for (const EntryFile& file : files) {
        const auto entry = readAutostartEntry(file.path);
        if (!entry || entry->isSwitchedOff ||
            !isSameLoginApplication(entry->application, application))
            continue;
        if (entry->isNotHere)
            return onlyHereLine();
        desktops += entry->onlyElsewhere;
        if (!desktops.empty() && !desktops.ends_with(';'))
            desktops += ';';
    }
    return desktops.empty() ? "" : "NotShowIn=" + desktops;
}

/// A path for the application's entry in the folder. Empty when all are taken.
std::string freePath(const std::string& folder, const std::string& identifier,
                     const std::string& application) {
    for (int n = 1; n <= kMostNames; ++n) {
        const std::string number = n == 1 ? "" : '-' + std::to_string(n);
        const std::string path = folder + '/' + identifier + number + ".desktop";
        if (isFree(path, application))
            return path;
    }
    return {};
}

bool replaceFile(const LSSharedFileList& list, const std::string& path, const std::string& text) {
    PendingFile file(path, text, list.isGlobal() ? 0644 : 0600);
    return file.error() == 0 && file.putInPlace() == 0;
}

/// Makes the file the last one of its folder, even if the clock was set back or is too coarse.
void makeLast(const std::string& path, const std::vector<EntryFile>& others) {
    if (others.empty() || isEarlier(others.back().changed, changeTime(path)))
        return;
    timespec time = others.back().changed;
    if (++time.tv_nsec == 1'000'000'000)
        time = {time.tv_sec + 1, 0};
    const timespec times[] = {time, time};
    utimensat(AT_FDCWD, path.c_str(), times, AT_SYMLINK_NOFOLLOW);
}

std::string bundleText(const CFBundle* bundle, const char* key) {
    const auto* text =
        dynamicCFCast<CFString>(CFBundleGetValueForInfoDictionaryKey(bundle, CFSTR(key)));
    return text ? toUTF8(text) : std::string();
}

} // namespace

std::string LSSharedFileList::folder() const {
    return folders().front();
}

std::vector<std::string> LSSharedFileList::folders() const {
    auto all = isGlobal_ ? xdgSystemConfigFolders() : std::vector{xdgConfigHome()};
    for (std::string& folder : all)
        folder += "/autostart";
    return all;
}

CFRef<LSSharedFileList> LSSharedFileListCreate(const CFString* listType) {
    if (listType != kLSSharedFileListSessionLoginItems &&
        listType != kLSSharedFileListGlobalLoginItems)
        return nullptr;
    return CFRef<LSSharedFileList>::adopt(
        new LSSharedFileList(listType == kLSSharedFileListGlobalLoginItems));
}

OSStatus LSSharedFileListSetAuthorization(LSSharedFileList*, AuthorizationRef) {
    return noErr;
}

CFRef<CFArray> LSSharedFileListCopySnapshot(const LSSharedFileList* list, UInt32* seed) {
    std::vector<EntryFile> files;
    if (!listEntryFiles(list->folders(), files))
        return nullptr;
    if (seed)
        *seed = 0;
    CFArray::Items items;
    for (const EntryFile& file : files) {
        const auto entry = readAutostartEntry(file.path);
        if (entry && entry->isLive)
            items.push_back(CFRef<LSSharedFileListItem>::adopt(
                new LSSharedFileListItem(file.path, entry->application)));
    }
    return CFRef<CFArray>::adopt(new CFArray(std::move(items)));
}

OSStatus LSSharedFileListItemResolve(const LSSharedFileListItem* item, UInt32, CFRef<CFURL>* url,
                                     FSRef*) {
    if (item->application().empty())
        return fnfErr;
    *url = CFURLCreateFromFileSystemRepresentation(item->application().c_str(), true);
    return noErr;
}

OSStatus LSSharedFileListItemRemove(LSSharedFileList* list, const LSSharedFileListItem* item) {
    const std::string& path = item->file();
    const std::string name = fileName(path);
    const std::vector<std::string> systems = LSSharedFileList(true).folders();
    const bool uncovers = std::any_of(systems.begin(), systems.end(), [&](const auto& folder) {
        return isAnythingAt(folder + '/' + name);
    });
    if (!list->isGlobal() && uncovers)
        return replaceFile(*list, path, hiddenAutostartEntryText(name, item->application()))
                   ? noErr
                   : permErr;
    if (unlink(path.c_str()) == 0)
        return noErr;
    return errno == ENOENT ? fnfErr : permErr;
}

CFRef<LSSharedFileListItem> LSSharedFileListInsertItemURL(LSSharedFileList* list,
                                                          const LSSharedFileListItem*,
                                                          const CFString*, const CFType*,
                                                          const CFURL* url, const CFDictionary*,
                                                          const CFArray*) {
    const CFRef<CFBundle> bundle = CFBundleCreate(url);
    const CFRef<CFURL> executable = bundle ? CFBundleCopyExecutableURL(bundle.get()) : nullptr;
    const std::string identifier = bundle ? bundleText(bundle.get(), "CFBundleIdentifier") : "";
    if (!executable || identifier.empty() || identifier.find('/') != std::string::npos)
        return nullptr;

    const std::string folder = list->folder();
    std::vector<EntryFile> others;
    if (makeFolders(folder, list->isGlobal() ? 0755 : 0700) != 0 ||
        !listEntryFiles({folder}, others))
        return nullptr;
    const std::string name = bundleText(bundle.get(), "CFBundleName");
    const std::string path = freePath(folder, identifier, bundle->path());
    const std::string text = autostartEntryText(
        name.empty() ? identifier : name, executable->path(), desktopsLine(others, bundle->path()));
    if (path.empty() || !replaceFile(*list, path, text))
        return nullptr;
    makeLast(path, others);
    return CFRef<LSSharedFileListItem>::adopt(new LSSharedFileListItem(path, bundle->path()));
}

bool isSameLoginApplication(const std::string& path, const std::string& other) {
    return fileName(path) == fileName(other) ||
           CFStringCompare(createFromUTF8(path).get(), createFromUTF8(other).get(),
                           kCFCompareCaseInsensitive) == kCFCompareEqualTo;
}

bool isLoginItemSwitchedOff(const CFURL* application) {
    std::vector<EntryFile> files;
    return listEntryFiles({LSSharedFileList(false).folder()}, files) &&
           !switchedOffPaths(files, application->path()).empty();
}

bool hideGlobalLoginItems(const CFURL* application) {
    const LSSharedFileList global(true), own(false);
    std::vector<EntryFile> files;
    bool hidden = listEntryFiles(global.folders(), files);
    for (const EntryFile& file : files) {
        const std::string name = fileName(file.path), path = own.folder() + '/' + name;
        const auto entry = readAutostartEntry(file.path);
        if (entry && entry->isLive && !isAnythingAt(path) &&
            isSameLoginApplication(entry->application, application->path()))
            hidden &= makeFolders(own.folder(), 0700) == 0 &&
                      replaceFile(own, path, hiddenAutostartEntryText(name, entry->application));
    }
    return hidden;
}

void forgetSwitchedOffLoginItem(const CFURL* application) {
    const LSSharedFileList own(false);
    std::vector<EntryFile> files;
    if (!listEntryFiles({own.folder()}, files))
        return;
    bool isOn = false; // one is enough
    for (const std::string& path : switchedOffPaths(files, application->path())) {
        if (isOn || readAutostartEntry(path)->application != application->path() ||
            !replaceFile(own, resolveLinks(path), switchedOnEntryText(path))) {
            unlink(path.c_str());
            continue;
        }
        isOn = true;
        makeLast(path, files);
    }
}
