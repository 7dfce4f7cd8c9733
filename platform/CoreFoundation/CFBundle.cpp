// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFBundle.h"

#include "platform/CoreFoundation/CFPropertyList.h"
#include "platform/CoreFoundation/detail/FileReading.h"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <vector>

namespace fs = std::filesystem;

namespace {

/// All bundles in memory. Their destructors remove them. The list is never destroyed: static
/// objects may hold bundles until the very end.
std::vector<CFBundle*>& livingBundles() {
    static auto& bundles = *new std::vector<CFBundle*>;
    return bundles;
}

template <class Matches>
CFBundle* findBundle(Matches matches) {
    const auto found = std::find_if(livingBundles().begin(), livingBundles().end(), matches);
    return found == livingBundles().end() ? nullptr : *found;
}

CFRef<const CFDictionary> readInfo(const std::string& bundlePath) {
    const FileContents file =
        readRegularFile(bundlePath + "/Contents/Info.plist", kPropertyListMaxSize);
    const auto root = file.data ? CFPropertyListCreateFromXMLData(file.data.get()) : nullptr;
    return CFRef<const CFDictionary>::retain(dynamicCFCast<CFDictionary>(root.get()));
}

CFRef<CFBundle> openBundle(const std::string& path) {
    std::error_code error;
    const std::string canonical = fs::canonical(path, error).string();
    if (error)
        return nullptr;
    if (CFBundle* known = findBundle([&](const auto* b) { return b->path() == canonical; }))
        return CFRef<CFBundle>::retain(known);
    auto info = readInfo(canonical);
    return info ? CFRef<CFBundle>::adopt(new CFBundle(canonical, std::move(info))) : nullptr;
}

CFRef<CFBundle> openMainBundle() {
    std::error_code error;
    const fs::path folder = fs::read_symlink("/proc/self/exe", error).parent_path();
    const fs::path contents = folder.parent_path();
    if (error || folder.filename() != "Linux" || contents.filename() != "Contents")
        return nullptr;
    return openBundle(contents.parent_path().string());
}

bool equalIgnoringCase(const std::string& a, const std::string& b) {
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? c + ('a' - 'A') : int{c}; };
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](char x, char y) { return lower(x) == lower(y); });
}

/// The path; or the first file beside it whose name differs in letter case alone. On macOS file
/// names ignore case.
fs::path inAnyCase(const fs::path& path) {
    std::error_code error;
    if (fs::exists(fs::symlink_status(path, error)))
        return path;
    for (fs::directory_iterator entry(path.parent_path(), error), end; !error && entry != end;
         entry.increment(error))
        if (equalIgnoringCase(entry->path().filename(), path.filename()))
            return entry->path();
    return path;
}

/// The URL of `relative` in `folder`. Null when nothing is there, or it lies outside.
CFRef<CFURL> existingURL(const fs::path& folder, const fs::path& relative) {
    const bool climbs = std::find(relative.begin(), relative.end(), "..") != relative.end();
    if (relative.empty() || relative.is_absolute() || climbs)
        return nullptr;
    const fs::path path = inAnyCase(folder / relative);
    std::error_code error;
    const fs::file_status status = fs::status(path, error);
    if (!fs::exists(status))
        return nullptr;
    return CFURLCreateFromFileSystemRepresentation(path.c_str(), fs::is_directory(status));
}

} // namespace

CFBundle::CFBundle(std::string path, CFRef<const CFDictionary> info)
    : path_(std::move(path)), info_(std::move(info)) {
    livingBundles().push_back(this);
}

CFBundle::~CFBundle() {
    std::erase(livingBundles(), this);
}

/// All symbols are resolved at once, so a missing one is an error here and no crash later. The
/// library's own symbols stay local, so two bundles can't clash. Nothing looks them up: classes
/// register themselves with the program, and types are compared by name.
bool CFBundle::load(std::string* error) {
    const CFRef<CFURL> executable = CFBundleCopyExecutableURL(this);
    if (!library_ && executable)
        library_ = dlopen(executable->path().c_str(), RTLD_NOW | RTLD_LOCAL);
    if (!library_ && error)
        *error = executable ? dlerror() : path_ + ": no executable in Contents/Linux";
    return library_ != nullptr;
}

void* CFBundle::symbol(const char* name) const {
    return library_ ? dlsym(library_, name) : nullptr;
}

CFRef<CFBundle> CFBundleCreate(const CFURL* bundleURL) {
    return openBundle(bundleURL->path());
}

CFBundle* CFBundleGetBundleWithIdentifier(const CFString* identifier) {
    return findBundle([&](const CFBundle* bundle) {
        return CFEqual(CFDictionaryGetValue(bundle->info(), CFSTR("CFBundleIdentifier")),
                       identifier);
    });
}

CFBundle* CFBundleGetMainBundle() {
    static const auto& bundle = *new CFRef<CFBundle>(openMainBundle());
    return bundle.get();
}

const CFType* CFBundleGetValueForInfoDictionaryKey(const CFBundle* bundle, const CFString* key) {
    return CFDictionaryGetValue(bundle->info(), key);
}

CFRef<CFURL> CFBundleCopyBundleURL(const CFBundle* bundle) {
    return CFURLCreateFromFileSystemRepresentation(bundle->path().c_str(), true);
}

CFRef<CFURL> CFBundleCopyResourcesDirectoryURL(const CFBundle* bundle) {
    const std::string path = bundle->path() + "/Contents/Resources";
    return CFURLCreateFromFileSystemRepresentation(path.c_str(), true);
}

CFRef<CFURL> CFBundleCopyExecutableURL(const CFBundle* bundle) {
    const auto* name = dynamicCFCast<CFString>(
        CFBundleGetValueForInfoDictionaryKey(bundle, CFSTR("CFBundleExecutable")));
    return name ? CFBundleCopyAuxiliaryExecutableURL(bundle, name) : nullptr;
}

CFRef<CFURL> CFBundleCopyAuxiliaryExecutableURL(const CFBundle* bundle, const CFString* name) {
    return existingURL(bundle->path() + "/Contents/Linux", toUTF8(name));
}

CFRef<CFURL> CFBundleCopyResourceURL(const CFBundle* bundle, const CFString* name,
                                     const CFString* type, const CFString* subdirectory) {
    if (!name)
        return nullptr;
    std::string fileName = toUTF8(name);
    if (type)
        fileName += '.' + toUTF8(type);
    if (fs::path(fileName).is_absolute())
        return nullptr;
    const fs::path folder = subdirectory ? toUTF8(subdirectory) : std::string();
    return existingURL(bundle->path() + "/Contents/Resources", folder / fileName);
}

bool CFBundleLoadExecutable(CFBundle* bundle, std::string* error) {
    return bundle->load(error);
}

void* CFBundleGetFunctionPointerForName(CFBundle* bundle, const CFString* name) {
    return bundle->symbol(toUTF8(name).c_str());
}
