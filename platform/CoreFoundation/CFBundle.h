// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFURL.h"

/// A bundle folder: Contents/Info.plist, Contents/Resources, and Contents/Linux for executables.
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
/// that already has a bundle object gives that same object.
CFRef<CFBundle> CFBundleCreate(const CFURL* bundleURL);

/// The bundle made with that identifier and still alive, or null. Borrowed.
CFBundle* CFBundleGetBundleWithIdentifier(const CFString* identifier);

/// The bundle that holds the running executable, or null when it lies in none. Borrowed.
CFBundle* CFBundleGetMainBundle();

const CFType* CFBundleGetValueForInfoDictionaryKey(const CFBundle* bundle, const CFString* key);
CFRef<CFURL> CFBundleCopyBundleURL(const CFBundle* bundle);
CFRef<CFURL> CFBundleCopyResourcesDirectoryURL(const CFBundle* bundle);

/// The URL of Contents/Linux/<CFBundleExecutable>, or null when Info.plist names none or no file is
/// there.
CFRef<CFURL> CFBundleCopyExecutableURL(const CFBundle* bundle);

/// The URL of a file or folder of that name in Contents/Linux, or null.
CFRef<CFURL> CFBundleCopyAuxiliaryExecutableURL(const CFBundle* bundle, const CFString* name);

/// The URL of Resources[/subdirectory]/name.type, or null when there is no such file. A null name
/// gives null; a null type means that `name` is the whole file name; a null subdirectory means the
/// top level. Letter case of the file's name counts only where two files differ in nothing else.
/// Neither name nor subdirectory may climb out of Resources.
CFRef<CFURL> CFBundleCopyResourceURL(const CFBundle* bundle, const CFString* name,
                                     const CFString* type, const CFString* subdirectory);

/// Loads the bundle's executable, a shared library, into the process. False, with the loader's
/// reason in `*error` if that isn't null, when it can't be loaded. Loaded code stays in the
/// process, also when the bundle object goes.
bool CFBundleLoadExecutable(CFBundle* bundle, std::string* error);

/// The address of a function of a loaded bundle that has C linkage; null when there is none.
void* CFBundleGetFunctionPointerForName(CFBundle* bundle, const CFString* name);
