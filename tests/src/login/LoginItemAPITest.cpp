// SPDX-License-Identifier: MIT
#include "src/login/LoginItemAPI.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/login/loginwindowlists.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gmock/gmock.h>

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
        for (const char* path : {"/A.app", "/B.app", "/A.app"})
            EXPECT_TRUE(AddLoginItemWithPropertiesToUser(user, path, true));
        for (const CFIndex index : {-1, 3})
            EXPECT_FALSE(RemoveLoginItemAtIndex(user, index) ||
                         ReturnLoginItemPropertyAtIndex(user, kLoginItemFullPath, index));
        EXPECT_TRUE(RemoveLoginItemAtIndex(user, 2));
        EXPECT_THAT(paths(user), ElementsAre("/A.app", "/B.app"));
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(user, kLoginItemExecutableName, 1), "B.app");
    }
    EXPECT_TRUE(RemoveLoginItemAtIndex(kMine, 0));
    EXPECT_THAT(paths(kEveryones), ElementsAre("/A.app", "/B.app"));
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

TEST(LoginItemAPITest, RefusesForeignPathsAndWhatCantBeWritten) {
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kCFPreferencesAnyHost, "/A.app", false));
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/Ärger.app", false));
    writeFile(std::getenv("XDG_CONFIG_HOME"), "in the folder's place");
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/A.app", false));
}

} // namespace
