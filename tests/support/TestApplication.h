// SPDX-License-Identifier: MIT
#pragma once

#include "platform/CoreFoundation/CFURL.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

/// A desktop entry with that Exec value, and more lines.
inline std::string desktopEntry(const std::string& exec, const std::string& more = "") {
    return "[Desktop Entry]\nType=Application\nName=Any\nExec=" + exec + '\n' + more;
}

/// Makes an application's bundle, org.korvex.Test, whose executable is Contents/Linux/run. Gives
/// its URL.
inline CFRef<CFURL> makeTestApplication(const fs::path& bundle,
                                        const std::string& script = "#!/bin/sh\n") {
    const auto executable = bundle / "Contents/Linux/run";
    writeFile(executable, script);
    fs::permissions(executable, fs::perms::owner_all);
    writeFile(bundle / "Contents/Info.plist",
              dictionaryFile("<key>CFBundleIdentifier</key><string>org.korvex.Test</string>"
                             "<key>CFBundleName</key><string>Test</string>"
                             "<key>CFBundleExecutable</key><string>run</string>"));
    return CFURLCreateFromFileSystemRepresentation(bundle.c_str(), true);
}
