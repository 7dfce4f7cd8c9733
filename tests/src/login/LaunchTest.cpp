#include "src/login/launch.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/login/LoginItemAPI.h"
#include "tests/src/login/FakeSystem.h"
#include "tests/support/TestApplication.h"

#include <cctype>
#include <cstring>
#include <gmock/gmock.h>
#include <map>
#include <optional>
#include <sys/stat.h>

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

const fs::path kSandbox = std::getenv("KORVEX_TEST_SANDBOX");
const fs::path kApplication = kSandbox / "Agent of 100% \"Kind\".app";
const fs::path kMine = kSandbox / "home/.config/autostart";
const fs::path kEveryones = kSandbox / "etc/xdg/autostart";
constexpr const char* kEntry = "org.korvex.Test.desktop";

/// The folder's files: names with inode, time and content.
std::map<std::string, std::string> stateOf(const fs::path& folder) {
    std::map<std::string, std::string> files;
    if (!fs::is_directory(folder))
        return files;
    for (const auto& file : fs::directory_iterator(folder)) {
        struct stat status {};

        lstat(file.path().c_str(), &status);
        files[file.path().filename()] = std::to_string(status.st_ino) + ' ' +
                                        std::to_string(status.st_mtim.tv_nsec) + ' ' +
                                        readFile(file.path());
    }
    return files;
}

std::string exec(const std::string& command, const std::string& more = "") {
    return "[Desktop Entry]\nType=Application\nName=Any\nExec=" + command + '\n' + more;
}

/// An Exec value that starts the application, or one whose path is another.
std::string startOf(std::string path) {
    for (const auto& [old, now] : {std::pair("%", "%%"), std::pair("\"", "\\\\\"")})
        for (std::size_t at = 0; (at = path.find(old, at)) != path.npos; at += std::strlen(now))
            path.replace(at, 1, now);
    return '"' + path + "/Contents/Linux/run\"";
}

class LaunchTest : public testing::Test {
protected:
    ~LaunchTest() override { EXPECT_EQ(fakeSystem.authorizations, 0); }

    bool set(bool autoLaunch, bool allUsers) {
        return launchSetAppIsAutoLaunched(url.get(), autoLaunch, allUsers);
    }

    LaunchUIState state(bool showAllUsers) {
        return launchGetCurrentUIStateForApp(url.get(), showAllUsers);
    }

    CFRef<CFURL> url = makeTestApplication(kApplication);
};

TEST_F(LaunchTest, ListsTheApplicationOnceAndTakesItOutWhateverTheFolderHolds) {
    std::string shouting = kApplication;
    for (char& c : shouting)
        c = static_cast<char>(std::toupper(c));

    const struct {
        const char* name;
        std::map<std::string, std::string> files;
        std::map<std::string, std::string> left = files; ///< without it
    } cases[] = {
        {"no folder", {}},
        {"twice",
         {{"a.desktop", exec(startOf(kApplication))}, {"b.desktop", exec(startOf(kApplication))}},
         {}},
        {"another letter case", {{"a.desktop", exec(startOf(shouting))}}, {}},
        {"edited by a desktop",
         {{kEntry, exec(startOf(kApplication),
                        "X-GNOME-Autostart-Delay=5\nHidden=false\n[Other]\nExec=x\n")}},
         {}},
        {"started through another",
         {{"a.desktop", exec("env A=1 " + startOf(kApplication) + " --quiet")}},
         {}},
        {"others'",
         {{"a.desktop", exec("other --x")},
          {"b.desktop", exec("/usr/bin/env")},
          {"c.txt", exec(startOf(kApplication))},
          {"d.desktop", exec(startOf(kApplication.parent_path() / "Other.app"))}}},
        {"broken",
         {{"a.desktop", ""},
          {"b.desktop", "\x7f"
                        "ELF\n[[["},
          {"c.desktop", "[Desktop Entry]\nExec=" + startOf(kApplication)}}},
        {"hidden",
         {{"a.desktop", exec(startOf(kApplication), "Hidden=true\n")},
          {"b.desktop", exec(startOf(kApplication), "X-GNOME-Autostart-enabled=false\n")}}},
        {"without its program", {{"a.desktop", exec(startOf(kApplication), "TryExec=/nowhere\n")}}},
    };

    for (const bool allUsers : {false, true}) {
        const fs::path& folder = allUsers ? kEveryones : kMine;
        for (const auto& test : cases) {
            SCOPED_TRACE(test.name);
            fs::remove_all(folder);
            for (const auto& [name, text] : test.files)
                writeFile(folder / name, text);
            EXPECT_TRUE(set(true, allUsers));
            EXPECT_EQ(state(true) & (kLaunchThisUserChecked | kLaunchAllUsersChecked),
                      allUsers ? kLaunchAllUsersChecked : kLaunchThisUserChecked);
            const auto listed = stateOf(folder);
            EXPECT_TRUE(set(true, allUsers));
            EXPECT_EQ(stateOf(folder), listed) << "written again";
            EXPECT_TRUE(set(false, allUsers));
            EXPECT_FALSE(launchAppIsAutoLaunched(url.get()));
            for (const auto& [name, text] : test.left)
                EXPECT_TRUE(stateOf(folder)[name].ends_with(text)) << name;
            EXPECT_EQ(stateOf(folder).size(), test.left.size());
        }
    }
}

TEST_F(LaunchTest, ALinkIsTakenAwayButNotWhatItPointsTo) {
    writeFile(kSandbox / "elsewhere.desktop", exec(startOf(kApplication)));
    fs::create_directories(kMine);
    fs::create_symlink(kSandbox / "elsewhere.desktop", kMine / "a.desktop");
    fs::create_symlink(kSandbox / "nowhere", kMine / kEntry);
    EXPECT_TRUE(launchAppIsAutoLaunched(url.get()));
    EXPECT_TRUE(set(false, false));
    EXPECT_FALSE(fs::exists(fs::symlink_status(kMine / "a.desktop")));
    EXPECT_TRUE(set(true, false));
    EXPECT_TRUE(fs::is_symlink(kMine / kEntry)) << "another's";
    EXPECT_TRUE(fs::exists(kSandbox / "elsewhere.desktop"));
    EXPECT_EQ(state(false), kLaunchThisUserEnabled | kLaunchThisUserChecked);
}

TEST_F(LaunchTest, WhatCantBeChangedStaysAndIsTold) {
    writeFile(kMine / "a.desktop", exec(startOf(kApplication)));
    writeFile(kMine / "b.desktop", exec(startOf(kApplication)));
    writeFile(kEveryones, "a file in the folder's place");
    const auto before = stateOf(kMine);
    EXPECT_FALSE(set(true, true));
    EXPECT_FALSE(set(false, true)) << "can't be read";
    for (const bool made : {true, false}) {
        fakeSystem.makesAuthorizations = made;
        fakeSystem.grantsRight = false;
        EXPECT_FALSE(set(false, false));
        EXPECT_FALSE(set(true, false));
        EXPECT_EQ(stateOf(kMine), before);
    }
    EXPECT_EQ(fakeSystem.rightsAsked, 4);
    EXPECT_EQ(state(false), kLaunchThisUserEnabled | kLaunchThisUserChecked) << "reading is free";
}

TEST_F(LaunchTest, AsksForTheRightOnceForARemovalAndAgainForAnAddition) {
    set(false, false);
    EXPECT_EQ(fakeSystem.rightsAsked, 1);
    set(true, false);
    EXPECT_EQ(fakeSystem.rightsAsked, 3);
    EXPECT_EQ(fakeSystem.versionsAsked, 1);
}

TEST_F(LaunchTest, TellsTheStatesOfBothCheckBoxes) {
    for (int bits = 0; bits < 8; ++bits) {
        const bool mine = bits & 1, everyones = bits & 2, admin = bits & 4;
        set(mine, false);
        set(everyones, true);
        fakeSystem.groups = {4711u, admin ? 0u : 4712u};
        SCOPED_TRACE(bits);
        EXPECT_EQ(state(false), everyones ? 0x01u : mine ? 0x03u : 0x02u);
        EXPECT_EQ(state(true),
                  0x12u | (mine ? 0x01u : 0) | (everyones ? 0x04u : 0) | (admin ? 0x08u : 0));
        EXPECT_EQ(launchAppIsAutoLaunched(url.get()), mine || everyones);
    }
    EXPECT_EQ(launchGetCurrentUIStateForApp(nullptr, true), 0u) << "the test lies in no bundle";
    EXPECT_FALSE(launchSetAppIsAutoLaunched(nullptr, true, false));
}

TEST_F(LaunchTest, KnowsAnAdministrator) {
    const struct {
        const char* name;
        bool knowsUser;
        std::optional<std::vector<unsigned>> groups;
        bool isAdmin;
    } cases[] = {
        {"nobody's name", false, std::vector{1u}, true},
        {"unreadable groups", true, std::nullopt, true},
        {"199 groups", true, std::vector<unsigned>(199, 4711), false},
        {"200 groups and the base group", true, std::vector<unsigned>(200, 4711), true},
        {"a group of the platform's number", true, std::vector{80u}, false},
        {"root's group", true, std::vector{4711u, 0u}, true},
    };

    for (const auto& test : cases) {
        fakeSystem.knowsUser = test.knowsUser;
        fakeSystem.groups = test.groups;
        EXPECT_EQ(bool(state(true) & kLaunchAllUsersEnabled), test.isAdmin) << test.name;
    }
}

std::vector<std::string> loginWindowPaths() {
    std::vector<std::string> paths;
    const CFString* user = kCFPreferencesCurrentUser;
    for (CFIndex i = 0; i < GetCountOfLoginItems(user); ++i)
        paths.emplace_back(ReturnLoginItemPropertyAtIndex(user, kLoginItemFullPath, i));
    return paths;
}

TEST_F(LaunchTest, AnOldSystemKeepsItsListByTheBundlesName) {
    fakeSystem.version = std::nullopt;
    const std::string name = kApplication.filename();
    for (const std::string& path : {"/x/" + name, std::string("/Other.app"), "/y/" + name + '/'})
        AddLoginItemWithPropertiesToUser(kCFPreferencesCurrentUser, path.c_str(), false);
    EXPECT_EQ(state(false), kLaunchThisUserEnabled | kLaunchThisUserChecked);
    EXPECT_TRUE(set(true, false));
    EXPECT_THAT(loginWindowPaths(), ElementsAre("/Other.app", kApplication.string()));
    EXPECT_TRUE(set(false, false));
    EXPECT_THAT(loginWindowPaths(), ElementsAre("/Other.app"));
    EXPECT_THAT(stateOf(kMine), IsEmpty());
    EXPECT_EQ(fakeSystem.rightsAsked, 0);
    EXPECT_GT(fakeSystem.versionsAsked, 1) << "not known yet";

    const auto foreign = CFURLCreateFromFileSystemRepresentation("/Äpfel.app", true);
    EXPECT_TRUE(launchSetAppIsAutoLaunched(foreign.get(), true, false)) << "a failed add is one";
    EXPECT_FALSE(launchAppIsAutoLaunched(foreign.get()));
    const std::string longPath = "/" + std::string(1023, 'a');
    const auto longest = CFURLCreateFromFileSystemRepresentation(longPath.c_str(), true);
    EXPECT_FALSE(launchSetAppIsAutoLaunched(longest.get(), true, false)) << "no room for its path";
}

} // namespace
