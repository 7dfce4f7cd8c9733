// SPDX-License-Identifier: MIT
#pragma once

#include "src/link/Daemon.h"
#include "src/store/prefs.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

/// An agent's bundle for the test, with a folder of pointers and nothing to launch. The pane's link
/// to the agent uses it while this object exists.
class AgentBundle {
public:
    AgentBundle() {
        fs::remove_all(path());
        fs::create_directories(pointers());
        write(path() / "Contents/Info.plist", dictionaryFile(""));
        prefs = PrefsRecord{};
        prefs.on = 0;
        daemonSetup(createFromUTF8(path().string()).get());
    }

    ~AgentBundle() { daemonCleanup(); }

    AgentBundle(const AgentBundle&) = delete;

    static fs::path path() { return makeSandboxFolder("Test Agent.app"); }

    static fs::path resources() { return path() / "Contents/Resources"; }

    static fs::path pointers() { return resources() / "Pointers"; }

    static constexpr auto write = writeFile;
};
