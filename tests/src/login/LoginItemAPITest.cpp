// SPDX-License-Identifier: MIT
#include "src/login/LoginItemAPI.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/login/loginwindowlists.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

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

TEST(LoginItemAPITest, ALoginWindowsListTellsApplicationsByTheirBundlesName) {
    const auto url = CFURLCreateFromFileSystemRepresentation("/y/Some.app", true);
    for (const char* path : {"/x/Some.app", "/Other.app", "/z/Some.app/"})
        AddLoginItemWithPropertiesToUser(kMine, path, false);
    EXPECT_TRUE(setInLoginWindowList(url.get(), true, false));
    EXPECT_THAT(paths(kMine), ElementsAre("/Other.app", "/y/Some.app"));
    EXPECT_TRUE(setInLoginWindowList(url.get(), true, true));
    EXPECT_TRUE(setInLoginWindowList(url.get(), false, false));
    EXPECT_THAT(paths(kMine), ElementsAre("/Other.app"));
    EXPECT_THAT(paths(kEveryones), ElementsAre("/y/Some.app"));
    for (const CFIndex index : {-1, 1})
        EXPECT_FALSE(RemoveLoginItemAtIndex(kMine, index) ||
                     ReturnLoginItemPropertyAtIndex(kMine, kLoginItemFullPath, index));
    EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemExecutableName, 0), "Other.app");
}

TEST(LoginItemAPITest, RefusesForeignPathsAndWhatCantBeWritten) {
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kCFPreferencesAnyHost, "/A.app", false));
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/Ärger.app", false));
    writeFile(std::getenv("XDG_CONFIG_HOME"), "in the folder's place");
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/A.app", false));
}

} // namespace
