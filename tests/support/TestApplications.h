// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreServices/detail/FileCache.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <unistd.h>

/// Data folders of the test's own, in the order in which they are searched.
class ApplicationsTest : public testing::Test {
protected:
    ApplicationsTest() {
        setenv("XDG_DATA_HOME", home_.c_str(), 1);
        setenv("XDG_DATA_DIRS", (near_.string() + ":relative:" + far_.string()).c_str(), 1);
    }

    static void installBundle(const fs::path& data, const std::string& name,
                              const std::string& signature, const std::string& identifier) {
        writeFile(data / "applications" / name / "Contents/Info.plist",
                  dictionaryFile("<key>CFBundleSignature</key><string>" + signature + "</string>" +
                                 "<key>CFBundleIdentifier</key><string>" + identifier +
                                 "</string><key>CFBundleIconFile</key><string>Icon</string>"));
    }

    static void installEntry(const fs::path& data, const std::string& identifier,
                             const std::string& keys = "") {
        writeFile(data / "applications" / (identifier + ".desktop"),
                  "[Desktop Entry]\nType=Application\nName=Keys\nExec=keys\n" + keys);
    }

    /// Waits until the file's state tells every later change of it.
    static void waitUntilSettled(const fs::path& path) {
        while (!stateOfFile(path).isSettled())
            usleep(20'000);
    }

    fs::path folder_ = makeSandboxFolder("data");
    fs::path home_ = folder_ / "home", near_ = folder_ / "near", far_ = folder_ / "far";
};
