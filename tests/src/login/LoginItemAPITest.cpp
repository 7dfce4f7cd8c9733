// SPDX-License-Identifier: MIT
#include "src/login/LoginItemAPI.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/login/loginwindowlists.h"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>

namespace fs = std::filesystem;
using testing::ElementsAre;

namespace {

// References, since the constants are made when the program starts.
const CFString* const& kMine = kCFPreferencesCurrentUser;
const CFString* const& kEveryones = kCFPreferencesAnyUser;

std::vector<std::string> paths(const CFString* user) {
    std::vector<std::string> all;
    for (CFIndex i = 0; i < GetCountOfLoginItems(user); ++i) {
        const char* path = ReturnLoginItemPropertyAtIndex(user, kLoginItemFullPath, i);
        all.emplace_back(path ? path : "none");
    }
    return all;
}

TEST(LoginItemAPITest, AddsAtTheEndAndRemovesByIndexInEachUsersOwnList) {
    for (const CFString* user : {kMine, kEveryones}) {
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, 0));
        for (const char* path : {"/A.app", "/B.app", "/A.app"})
            EXPECT_TRUE(AddLoginItemWithPropertiesToUser(user, path, path[1] == 'B'));
        EXPECT_THAT(paths(user), ElementsAre("/A.app", "/B.app", "/A.app"));
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, 3) || RemoveLoginItemAtIndex(user, -1));
        EXPECT_TRUE(RemoveLoginItemAtIndex(user, 2) && RemoveLoginItemAtIndex(user, 0));
        EXPECT_THAT(paths(user), ElementsAre("/B.app"));
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(user, kLoginItemExecutableName, 0), "B.app");
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(user, kLoginItemHide, 0), "true");
        for (const CFIndex index : {-1, 1})
            EXPECT_EQ(ReturnLoginItemPropertyAtIndex(user, kLoginItemFullPath, index), nullptr);
    }
    EXPECT_TRUE(RemoveLoginItemAtIndex(kMine, 0));
    EXPECT_THAT(paths(kEveryones), ElementsAre("/B.app"));
}

TEST(LoginItemAPITest, ALoginWindowsListTellsApplicationsByTheirBundlesName) {
    const auto url = CFURLCreateFromFileSystemRepresentation("/y/Some.app", true);
    for (const char* path : {"/x/Some.app", "/Other.app", "/z/Some.app/"})
        AddLoginItemWithPropertiesToUser(kMine, path, false);
    EXPECT_TRUE(setInLoginWindowList(url.get(), true, false));
    EXPECT_THAT(paths(kMine), ElementsAre("/Other.app", "/y/Some.app"));
    EXPECT_TRUE(setInLoginWindowList(url.get(), false, false));
    EXPECT_THAT(paths(kMine), ElementsAre("/Other.app"));
}

TEST(LoginItemAPITest, RefusesOtherUsersForeignPathsAndFoldersThatCantBeWritten) {
    for (const CFString* user : {kCFPreferencesAnyHost, static_cast<const CFString*>(nullptr)}) {
        EXPECT_FALSE(AddLoginItemWithPropertiesToUser(user, "/A.app", false));
        EXPECT_EQ(GetCountOfLoginItems(user), 0);
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, 0));
    }
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/Ärger.app", false));
    const fs::path folder = std::getenv("XDG_CONFIG_HOME");
    EXPECT_FALSE(fs::exists(folder / "Preferences"));
    fs::create_directories(folder / "Preferences/loginwindow.plist"); // in the file's place
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/A.app", false));
}

} // namespace
