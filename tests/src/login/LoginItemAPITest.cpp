#include "src/login/LoginItemAPI.h"

#include "platform/CoreFoundation/CFArray.h"
#include "platform/CoreFoundation/CFDictionary.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFPreferences.h"

#include <cstdlib>
#include <filesystem>
#include <gmock/gmock.h>

namespace fs = std::filesystem;
using testing::ElementsAre;

namespace {

// References, since the constants are made when the program starts.
const CFString* const& kMine = kCFPreferencesCurrentUser;
const CFString* const& kEveryones = kCFPreferencesAnyUser;

void store(const CFString* user, const CFType* list) {
    CFPreferencesSetValue(CFSTR("AutoLaunchedApplicationDictionary"), list, CFSTR("loginwindow"),
                          user, kCFPreferencesAnyHost);
}

CFRef<CFDictionary> makeItem(const CFType* path, const CFType* hide) {
    const auto item = CFDictionaryCreateMutable();
    if (path)
        CFDictionarySetValue(item.get(), CFSTR("Path"), path);
    if (hide)
        CFDictionarySetValue(item.get(), CFSTR("Hide"), hide);
    return item;
}

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

TEST(LoginItemAPITest, ValuesOfWrongTypesAreNoItemsAndAreKept) {
    const CFString* path = CFSTR("/A.app");
    const std::string longest(1024, 'a');

    const struct {
        CFRef<const CFType> item;
        const char *path, *hide;
    } cases[] = {
        {makeItem(path, CFSTR("true")), "/A.app", nullptr},
        {makeItem(nullptr, kCFBooleanTrue), nullptr, "true"},
        {makeItem(kCFBooleanTrue, kCFBooleanFalse), nullptr, "false"},
        {makeItem(CFStringCreateWithUTF8("/Ä.app").get(), nullptr), nullptr, nullptr},
        {makeItem(CFStringCreateWithUTF8(longest).get(), nullptr), longest.c_str(), nullptr},
        {makeItem(CFStringCreateWithUTF8(longest + 'a').get(), nullptr), nullptr, nullptr},
        {CFRef<const CFType>::retain(path), nullptr, nullptr},
    };

    for (const auto& test : cases) {
        store(kMine, CFArrayCreate(std::array{test.item.get()}).get());
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemFullPath, 0), test.path);
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemHide, 0), test.hide);
    }
    store(kMine, path);
    EXPECT_EQ(GetCountOfLoginItems(kMine), 0);
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/B.app", false));
    EXPECT_TRUE(CFEqual(CFPreferencesCopyValue(CFSTR("AutoLaunchedApplicationDictionary"),
                                               CFSTR("loginwindow"), kMine, kCFPreferencesAnyHost)
                            .get(),
                        path));
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
