// SPDX-License-Identifier: MIT
#include "src/login/launch.h"

#include "platform/CoreServices/SharedFileList.h"
#include "platform/Security/Authorization.h"
#include "tests/support/TestApplication.h"

#include <cstring>
#include <map>
#include <sys/stat.h>

namespace {

// The system that a test wants.
bool makesAuthorizations = true, grantsRight = true;

int rightsAsked = 0;
int authorizations = 0; // made and not freed yet

} // namespace

// Replaces the platform's Authorization.cpp.

struct AuthorizationOpaqueRef {};

OSStatus AuthorizationCreate(const AuthorizationRights*, const AuthorizationEnvironment*,
                             AuthorizationFlags, AuthorizationRef* authorization) {
    static const AuthorizationOpaqueRef only;
    if (!makesAuthorizations)
        return errAuthorizationDenied;
    ++authorizations;
    *authorization = &only;
    return errAuthorizationSuccess;
}

OSStatus AuthorizationCopyRights(AuthorizationRef, const AuthorizationRights* rights,
                                 const AuthorizationEnvironment*, AuthorizationFlags flags,
                                 AuthorizationRights**) {
    ++rightsAsked;
    const bool isTheRight = rights->count == 1 && flags == 3 &&
                            std::strcmp(rights->items->name, "system.global-login-items.") == 0;
    return isTheRight && grantsRight ? errAuthorizationSuccess : errAuthorizationDenied;
}

OSStatus AuthorizationFree(AuthorizationRef, AuthorizationFlags) {
    --authorizations;
    return errAuthorizationSuccess;
}

namespace {

const fs::path kSandbox = std::getenv("KORVEX_TEST_SANDBOX");
const fs::path kApplication = kSandbox / "Some Agent.app";
const fs::path kMine = kSandbox / "home/.config/autostart";
const fs::path kEveryones = kSandbox / "etc/xdg/autostart";
constexpr const char* kEntry = "org.korvex.Test.desktop";

using Files = std::map<std::string, std::string>;

/// The folder's files: names, with inode and content.
Files stateOf(const fs::path& folder) {
    Files files;
    for (const auto& file : fs::directory_iterator(folder)) {
        struct stat status {};

        lstat(file.path().c_str(), &status);
        files[file.path().filename()] = std::to_string(status.st_ino) + ' ' + readFile(file.path());
    }
    return files;
}

/// An Exec value that starts the application, or one with another path.
std::string startOf(const std::string& path = kApplication) {
    return '"' + path + "/Contents/Linux/run\"";
}

class LaunchTest : public testing::Test {
protected:
    ~LaunchTest() override { EXPECT_EQ(authorizations, 0); }

    bool set(bool on, bool allUsers) { return launchSetAppIsAutoLaunched(url.get(), on, allUsers); }

    LaunchUIState state(bool all) { return launchGetCurrentUIStateForApp(url.get(), all); }

    CFRef<CFURL> url = makeTestApplication(kApplication);
};

TEST_F(LaunchTest, ListsTheApplicationOnceAndTakesItOutWhateverTheFolderHolds) {
    std::string shouting = kApplication;
    std::transform(shouting.begin(), shouting.end(), shouting.begin(), toupper);
    const Files own = {
        {"a.desktop", desktopEntry(startOf())},
        {"twice.desktop", desktopEntry(startOf())},
        {"another letter case.desktop", desktopEntry(startOf(shouting))},
        {kEntry,
         desktopEntry(startOf(), "X-GNOME-Autostart-Delay=5\nHidden=false\n[Other]\nExec=x\n")},
        {"through another.desktop", desktopEntry("env A=1 " + startOf() + " --quiet")},
    };
    const Files others = {
        {"another.desktop", desktopEntry("other --x")},
        {"env.desktop", desktopEntry("/usr/bin/env")},
        {"no entry.txt", desktopEntry(startOf())},
        {"beside.desktop", desktopEntry(startOf(kApplication.parent_path() / "Other.app"))},
        {"empty.desktop", ""},
        {"binary.desktop", "\x7f\x01[[["},
        {"cut.desktop", "[Desktop Entry]\nExec=" + startOf()},
        {"without its program.desktop", desktopEntry(startOf(), "TryExec=/nowhere\n")},
    };

    for (const bool allUsers : {false, true}) {
        const fs::path& folder = allUsers ? kEveryones : kMine;
        for (const Files& files : {own, others})
            for (const auto& [name, text] : files)
                writeFile(folder / name, text);
        for (int i = 0; i < 2; ++i) {
            EXPECT_TRUE(set(true, allUsers));
            EXPECT_EQ(state(true) & 0x05u, allUsers ? 0x04u : 0x01u);
            const auto listed = stateOf(folder);
            EXPECT_EQ(listed.size(), others.size() + 1);
            EXPECT_TRUE(set(true, allUsers));
            EXPECT_EQ(stateOf(folder), listed) << "written again";
            EXPECT_TRUE(set(false, allUsers));
            EXPECT_FALSE(launchAppIsAutoLaunched(url.get()));
        }
        EXPECT_EQ(stateOf(folder).size(), others.size());
        for (const auto& [name, text] : others)
            EXPECT_EQ(readFile(folder / name), text) << name;
    }
}

TEST_F(LaunchTest, ALinkIsTakenAwayButNotWhatItPointsTo) {
    writeFile(kSandbox / "elsewhere.desktop", desktopEntry(startOf()));
    fs::create_directories(kMine);
    fs::create_symlink(kSandbox / "elsewhere.desktop", kMine / "a.desktop");
    fs::create_symlink(kSandbox / "nowhere", kMine / kEntry);
    EXPECT_TRUE(launchAppIsAutoLaunched(url.get()));
    EXPECT_TRUE(set(false, false));
    EXPECT_FALSE(fs::exists(fs::symlink_status(kMine / "a.desktop")));
    EXPECT_TRUE(set(true, false));
    EXPECT_TRUE(fs::is_symlink(kMine / kEntry)) << "another's";
    EXPECT_TRUE(fs::exists(kSandbox / "elsewhere.desktop"));
}

TEST_F(LaunchTest, WhatCantBeChangedStaysAndIsTold) {
    for (const char* name : {"a.desktop", "b.desktop"})
        writeFile(kMine / name, desktopEntry(startOf()));
    writeFile(kEveryones, "a file in the folder's place");
    const auto before = stateOf(kMine);
    EXPECT_FALSE(set(true, true));
    EXPECT_FALSE(set(false, true)) << "can't be read";
    grantsRight = false;
    for (const bool made : {true, false}) {
        makesAuthorizations = made;
        EXPECT_FALSE(set(false, false));
        EXPECT_FALSE(set(true, false));
        EXPECT_EQ(stateOf(kMine), before);
    }
    EXPECT_EQ(state(false), 0x03u) << "reading is free";
    grantsRight = makesAuthorizations = true;
    rightsAsked = 0;
    EXPECT_TRUE(set(true, false));
    EXPECT_EQ(rightsAsked, 2) << "for the removal and for the addition";
}

TEST_F(LaunchTest, NothingElseStartsItForThisUser) {
    const fs::path far = kSandbox / "etc/far/autostart";
    setenv("XDG_CONFIG_DIRS",
           (kSandbox.string() + "/etc/xdg:" + kSandbox.string() + "/etc/far").c_str(), 1);
    const std::string copy = desktopEntry(startOf("/opt" / kApplication.filename()));
    writeFile(kEveryones / "first.desktop", desktopEntry(startOf()));
    writeFile(far / "far.desktop", desktopEntry(startOf()));
    writeFile(far / "copy.desktop", copy);
    writeFile(far / "first.desktop", desktopEntry("other"));
    writeFile(kMine / "copy of mine.desktop", copy);
    for (const bool on : {true, false}) {
        EXPECT_TRUE(set(on, false));
        for (const char* name : {"first.desktop", "far.desktop", "copy.desktop"})
            EXPECT_THAT(readFile(kMine / name), testing::HasSubstr("Hidden=true")) << name;
        EXPECT_FALSE(fs::exists(kMine / "copy of mine.desktop"));
        EXPECT_EQ(state(true) & 0x01u, on ? 0x01u : 0u);
    }
    EXPECT_EQ(stateOf(far).size(), 3u) << "the administrator's";
}

TEST_F(LaunchTest, WhatTheUserSwitchedOffElsewhereStaysUntilSwitchedOnHere) {
    setenv("XDG_CURRENT_DESKTOP", "ubuntu:GNOME", 1);
    for (const char* off : {"Hidden=true\n", "X-GNOME-Autostart-enabled=false\n"}) {
        const std::string text = desktopEntry(startOf(), std::string("Comment=Mine\n") + off);
        writeFile(kMine / kEntry, text);
        EXPECT_FALSE(set(true, false));
        EXPECT_EQ(readFile(kMine / kEntry), text);
        fs::rename(kMine / kEntry, kMine / "any.desktop"); // whatever its name
        EXPECT_FALSE(set(true, false)) << off;
        EXPECT_EQ(stateOf(kMine).size(), 1u) << off;
        launchForgetSwitchedOff(url.get());
        EXPECT_TRUE(set(true, false));
        EXPECT_TRUE(launchAppIsAutoLaunched(url.get()));
        EXPECT_EQ(readFile(kMine / "any.desktop"), desktopEntry(startOf(), "Comment=Mine\n"));
        EXPECT_EQ(stateOf(kMine).size(), 1u) << off;
        writeFile(kMine / "any.desktop", text);
        writeFile(kMine / "a copy's.desktop",
                  desktopEntry(startOf("/opt" / kApplication.filename())));
        EXPECT_TRUE(set(true, false)) << "the copy's gives way to one that is on as well";
        EXPECT_TRUE(launchAppIsAutoLaunched(url.get()));
        EXPECT_EQ(readFile(kMine / "any.desktop"), text);
        EXPECT_EQ(stateOf(kMine).size(), 2u);
        fs::remove_all(kMine);
    }
    for (const auto& [where, listed] : {std::pair("OnlyShowIn=KDE;", false),
                                        {"NotShowIn=XFCE;GNOME", false},
                                        {"OnlyShowIn=KDE;GNOME;", true}}) {
        writeFile(kMine / kEntry, desktopEntry(startOf(), where + std::string("\n")));
        EXPECT_EQ(launchAppIsAutoLaunched(url.get()), listed) << where;
    }
    const std::string elsewhere = desktopEntry(startOf(), "NotShowIn=GNOME;\nComment=Mine\n");
    writeFile(kMine / kEntry, elsewhere);
    for (int opening = 0; opening < 2; ++opening)
        EXPECT_TRUE(set(true, false));
    EXPECT_EQ(readFile(kMine / kEntry), elsewhere) << "the user's, for other desktops";
    for (const char* desktop : {"KDE", "ubuntu:GNOME"}) {
        setenv("XDG_CURRENT_DESKTOP", desktop, 1);
        const auto list = LSSharedFileListCreate(kLSSharedFileListSessionLoginItems);
        EXPECT_EQ(CFArrayGetCount(LSSharedFileListCopySnapshot(list.get(), nullptr).get()), 1)
            << desktop;
    }
}

} // namespace
