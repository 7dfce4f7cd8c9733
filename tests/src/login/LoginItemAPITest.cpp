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
using testing::StrEq;

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

void storeItem(const CFType* item) {
    store(kMine, CFArrayCreate(std::array{item}).get());
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
        EXPECT_EQ(GetCountOfLoginItems(user), 0);
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, 0));
        for (const char* path : {"/A.app", "/B.app", "/A.app"})
            EXPECT_TRUE(AddLoginItemWithPropertiesToUser(user, path, false));
        EXPECT_THAT(paths(user), ElementsAre("/A.app", "/B.app", "/A.app"));
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, 3));
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, -1));
        EXPECT_TRUE(RemoveLoginItemAtIndex(user, 2));
        EXPECT_TRUE(RemoveLoginItemAtIndex(user, 0));
        EXPECT_THAT(paths(user), ElementsAre("/B.app"));
    }
    EXPECT_TRUE(RemoveLoginItemAtIndex(kMine, 0));
    EXPECT_THAT(paths(kEveryones), ElementsAre("/B.app"));
    for (const char* variable : {"XDG_CONFIG_HOME", "XDG_CONFIG_DIRS"})
        EXPECT_TRUE(
            fs::exists(std::string(std::getenv(variable)) + "/Preferences/loginwindow.plist"));
}

TEST(LoginItemAPITest, TellsAnItemsProperties) {
    const struct {
        const char* path;
        UInt8 hide;
        const char *name, *hideText;
    } cases[] = {
        {"/Applications/Korvex Agent.app", 1, "Korvex Agent.app", "true"},
        {"/Applications/Korvex Agent.app//", 0, "Korvex Agent.app", "false"},
        {"Korvex", 2, "Korvex", "false"},
        {"/", 255, nullptr, "false"},
    };

    for (CFIndex i = 0; i < std::ssize(cases); ++i) {
        const auto& test = cases[i];
        AddLoginItemWithPropertiesToUser(kMine, test.path, test.hide);
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemFullPath, i), test.path);
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemExecutableName, i), test.name);
        EXPECT_STREQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemHide, i), test.hideText);
        for (const int property : {0, 4, -1})
            EXPECT_EQ(ReturnLoginItemPropertyAtIndex(kMine, property, i), nullptr);
    }
    for (const CFIndex index : {CFIndex{-1}, std::ssize(cases)})
        EXPECT_EQ(ReturnLoginItemPropertyAtIndex(kMine, kLoginItemFullPath, index), nullptr);
}

TEST(LoginItemAPITest, ValuesOfWrongTypesAreNoItemsAndAreKept) {
    const CFString* path = CFSTR("/A.app");
    const auto foreign = CFStringCreateWithUTF8("/Ä.app");
    const auto fits = CFStringCreateWithUTF8(std::string(1024, 'a'));
    const auto tooLong = CFStringCreateWithUTF8(std::string(1025, 'a'));

    const struct {
        CFRef<const CFType> item;
        const char *path, *hide;
    } cases[] = {
        {makeItem(path, CFSTR("true")), "/A.app", nullptr},
        {makeItem(path, nullptr), "/A.app", nullptr},
        {makeItem(nullptr, kCFBooleanTrue), nullptr, "true"},
        {makeItem(kCFBooleanTrue, kCFBooleanFalse), nullptr, "false"},
        {makeItem(foreign.get(), kCFBooleanTrue), nullptr, "true"},
        {makeItem(fits.get(), nullptr), "aaa", nullptr},
        {makeItem(tooLong.get(), nullptr), nullptr, nullptr},
        {CFRef<const CFType>::retain(path), nullptr, nullptr},
    };

    for (const auto& test : cases) {
        storeItem(test.item.get());
        const char* told = ReturnLoginItemPropertyAtIndex(kMine, kLoginItemFullPath, 0);
        EXPECT_EQ(told ? std::string(told).substr(0, 6) : "none", !test.path ? "none"
                                                                  : test.path[1] == 'a'
                                                                      ? "aaaaaa"
                                                                      : test.path);
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
        EXPECT_EQ(ReturnLoginItemPropertyAtIndex(user, kLoginItemFullPath, 0), nullptr);
        EXPECT_FALSE(RemoveLoginItemAtIndex(user, 0));
        EXPECT_FALSE(PrintNumberOfLoginItems(user));
        EXPECT_FALSE(PrintOutAllLoginItems(user));
        EXPECT_FALSE(PrintOutLoginItemAtIndex(user, 0));
    }
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/Ärger.app", false));
    const fs::path folder = std::getenv("XDG_CONFIG_HOME");
    EXPECT_FALSE(fs::exists(folder / "Preferences"));

    fs::create_directories(folder / "Preferences/loginwindow.plist"); // in the file's place
    EXPECT_FALSE(AddLoginItemWithPropertiesToUser(kMine, "/A.app", false));
}

TEST(LoginItemAPITest, PrintsTheList) {
    const auto printed = [](auto&& print) {
        testing::internal::CaptureStdout();
        const bool result = print();
        std::fflush(stdout);
        return std::pair(result, testing::internal::GetCapturedStdout());
    };
    EXPECT_EQ(
        printed([] { return PrintOutAllLoginItems(kMine); }),
        std::pair(true, std::string("LoginItems are Empty (i.e. there are no LoginItems)\n")));
    AddLoginItemWithPropertiesToUser(kMine, "/A.app", true);
    AddLoginItemWithPropertiesToUser(kMine, "/", false);
    EXPECT_EQ(printed([] { return PrintNumberOfLoginItems(kMine); }),
              std::pair(true, std::string("The number of LoginItems is: 2")));
    EXPECT_EQ(printed([] { return PrintOutAllLoginItems(kMine); }),
              std::pair(false, std::string("LoginItem Index 0:\n"
                                           "\tFull path to App: /A.app\n"
                                           "\tHide Info:        true\n"
                                           "\tExecutable Name:  A.app\n"
                                           "LoginItem Index 1:\n"
                                           "\tFull path to App: /\n"
                                           "\tHide Info:        false\n")));
}

} // namespace
