// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFURL.h"

/// A bundle folder: Contents/Info.plist, Contents/Resources, and executables in Contents/Linux.
class CFBundle final : public CFType {
public:
    CFBundle(std::string path, CFRef<const CFDictionary> info);

    const std::string& path() const { return path_; } ///< absolute, without symbolic links

    const CFDictionary* info() const { return info_.get(); }

    bool load(std::string* error);

    /// Null before load().
    void* symbol(const char* name) const;

    CFTypeID typeID() const override { return CFTypeID::Bundle; }

private:
    ~CFBundle() override;

    std::string path_;
    CFRef<const CFDictionary> info_;
    void* library_ = nullptr; ///< stays open
};

/// Null when the folder has no readable Contents/Info.plist with a dictionary at its root. A folder
/// has one bundle object at a time.
CFRef<CFBundle> CFBundleCreate(const CFURL* bundleURL);

/// The bundle with that identifier that is in memory, or null. Borrowed.
CFBundle* CFBundleGetBundleWithIdentifier(const CFString* identifier);

/// The bundle that contains the running executable, or null. Borrowed.
CFBundle* CFBundleGetMainBundle();

const CFType* CFBundleGetValueForInfoDictionaryKey(const CFBundle* bundle, const CFString* key);
CFRef<CFURL> CFBundleCopyBundleURL(const CFBundle* bundle);
CFRef<CFURL> CFBundleCopyResourcesDirectoryURL(const CFBundle* bundle);

/// The URL of Contents/Linux/<CFBundleExecutable>. Null when Info.plist names none or the file is
/// missing.
CFRef<CFURL> CFBundleCopyExecutableURL(const CFBundle* bundle);

/// The URL of a file or folder of that name in Contents/Linux, or null.
CFRef<CFURL> CFBundleCopyAuxiliaryExecutableURL(const CFBundle* bundle, const CFString* name);

/// The URL of Resources[/subdirectory]/name.type. Null when there is no such file, or `name` is
/// null. With a null type `name` is the whole file name; with a null subdirectory the file is at
/// the top level. Letter case counts only between files that differ in nothing else. Neither name
/// nor subdirectory may lead out of Resources.
CFRef<CFURL> CFBundleCopyResourceURL(const CFBundle* bundle, const CFString* name,
                                     const CFString* type, const CFString* subdirectory);

/// Loads the bundle's executable, a shared library, into the process. False when it can't be
/// loaded; `*error` (may be null) then has the loader's reason. The code stays loaded, even when
/// the bundle object goes.
bool CFBundleLoadExecutable(CFBundle* bundle, std::string* error);

/// The address of a C function of a loaded bundle. Null when there is none.
void* CFBundleGetFunctionPointerForName(CFBundle* bundle, const CFString* name);
