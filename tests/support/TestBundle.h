#pragma once

#include "platform/CoreFoundation/CFBundle.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

/// A bundle in the sandbox, to put resources in.
class TestBundle {
public:
    TestBundle() {
        writeFile(folder_ / "Contents/Info.plist", dictionaryFile(""));
        bundle_ = CFBundleCreate(url(folder_).get());
    }

    const CFBundle* get() const { return bundle_.get(); }

    void write(const std::string& name, std::string_view bytes) {
        writeFile(resources_ / name, bytes);
    }

    CFRef<CFURL> resource(const std::string& name) { return url(resources_ / name); }

    static CFRef<CFURL> url(const std::filesystem::path& path) {
        return CFURLCreateFromFileSystemRepresentation(path.c_str(), false);
    }

    std::filesystem::path resources() const { return resources_; }

private:
    std::filesystem::path folder_ = makeSandboxFolder("Test.app");
    std::filesystem::path resources_ = folder_ / "Contents/Resources";
    CFRef<CFBundle> bundle_;
};

/// How many files this process has open.
inline long countOpenFiles() {
    const std::filesystem::directory_iterator files("/proc/self/fd");
    return std::distance(begin(files), end(files));
}
