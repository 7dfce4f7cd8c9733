#include "platform/CoreServices/SharedFileList.h"

#include "tests/support/TestApplication.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace fs = std::filesystem;
using testing::ElementsAre;

namespace {

const fs::path kSandbox = std::getenv("KORVEX_TEST_SANDBOX");
const fs::path kFolder = kSandbox / "home/.config/autostart";

std::string entry(const std::string& exec) {
    return "[Desktop Entry]\nType=Application\nName=Any\nExec=" + exec + '\n';
}

class SharedFileListTest : public testing::Test {
protected:
    std::vector<std::string> files() {
        std::vector<std::string> names;
        const auto snapshot = LSSharedFileListCopySnapshot(list.get(), nullptr);
        for (const auto& item : snapshot->items())
            names.push_back(
                fs::path(dynamicCFCast<LSSharedFileListItem>(item.get())->file()).filename());
        return names;
    }

    CFRef<LSSharedFileListItem> insert(const CFURL* url) {
        return LSSharedFileListInsertItemURL(list.get(), kLSSharedFileListItemLast, nullptr,
                                             nullptr, url, nullptr, nullptr);
    }

    /// As if the file had last been changed `seconds` from now.
    static void setAge(const fs::path& path, int seconds) {
        fs::last_write_time(path, fs::file_time_type::clock::now() + std::chrono::seconds(seconds));
    }

    CFRef<LSSharedFileList> list = LSSharedFileListCreate(kLSSharedFileListSessionLoginItems);
};

TEST_F(SharedFileListTest, EntriesAreSoundAndLeadBackToTheirApplication) {
    for (const char* name :
         {"Plain.app", "With  blanks.app", "\"Quotes' `and` $HOME\\n.app", "100 %f %% %.app",
          "~&;|<>#?*(){}=!.app", "Ünïcödé 🙂.app", "tab\tand\nline.app", "\\.app"}) {
        SCOPED_TRACE(name);
        const fs::path bundle = kSandbox / name;
        const auto url = makeTestApplication(bundle);
        const auto item = insert(url.get());
        ASSERT_TRUE(item);
        EXPECT_EQ(std::system(("desktop-file-validate '" + item->file() + "' >&2").c_str()), 0);

        const auto snapshot = LSSharedFileListCopySnapshot(list.get(), nullptr);
        ASSERT_EQ(snapshot->items().size(), 1u);
        CFRef<CFURL> resolved;
        const auto* found = dynamicCFCast<LSSharedFileListItem>(snapshot->items()[0].get());
        ASSERT_EQ(LSSharedFileListItemResolve(found, 3, &resolved, nullptr), noErr);
        EXPECT_EQ(resolved->path(), bundle);
        EXPECT_EQ(LSSharedFileListItemRemove(list.get(), found), noErr);
        EXPECT_EQ(LSSharedFileListItemRemove(list.get(), found), fnfErr);
    }
}

TEST_F(SharedFileListTest, OrderIsThatOfTheLastChangesAndANewItemIsLast) {
    for (const auto& [name, age] :
         {std::pair("c.desktop", -30), {"a.desktop", -20}, {"z.desktop", 900}}) {
        writeFile(kFolder / name, entry("other"));
        setAge(kFolder / name, age);
    }
    insert(makeTestApplication(kSandbox / "A.app").get());
    EXPECT_THAT(files(),
                ElementsAre("c.desktop", "a.desktop", "z.desktop", "org.korvex.Test.desktop"));
}

TEST_F(SharedFileListTest, AnEntrysNameIsTakenOnlyFromAnotherOfItsOwn) {
    const auto url = makeTestApplication(kSandbox / "A.app");
    const std::string own = "\"" + url->path() + "/Contents/Linux/run\"";

    const struct {
        const char* present;
        std::string text;
        const char* written;
    } cases[] = {
        {"its own, hidden", entry(own) + "Hidden=true\n", "org.korvex.Test.desktop"},
        {"its own from where it was before",
         entry("/gone/A.app/Contents/Linux/run") + "TryExec=/gone\n", "org.korvex.Test.desktop"},
        {"another's", entry("other"), "org.korvex.Test-2.desktop"},
        {"another's, hidden", entry("/x/other") + "Hidden=true\n", "org.korvex.Test-2.desktop"},
        {"broken", "???", "org.korvex.Test-2.desktop"},
    };

    for (const auto& test : cases) {
        fs::remove_all(kFolder);
        writeFile(kFolder / "org.korvex.Test.desktop", test.text);
        const auto item = insert(url.get());
        ASSERT_TRUE(item) << test.present;
        EXPECT_EQ(fs::path(item->file()).filename(), test.written) << test.present;
    }
}

TEST_F(SharedFileListTest, AUsersItemDoesntUncoverTheOneOfAllUsers) {
    const auto url = makeTestApplication(kSandbox / "A.app");
    const auto everyones = LSSharedFileListCreate(kLSSharedFileListGlobalLoginItems);
    for (LSSharedFileList* each : {everyones.get(), list.get()})
        LSSharedFileListInsertItemURL(each, kLSSharedFileListItemLast, nullptr, nullptr, url.get(),
                                      nullptr, nullptr);
    const auto snapshot = LSSharedFileListCopySnapshot(list.get(), nullptr);
    const auto* item = dynamicCFCast<LSSharedFileListItem>(snapshot->items()[0].get());
    EXPECT_EQ(LSSharedFileListItemRemove(list.get(), item), noErr);
    EXPECT_THAT(files(), ElementsAre());
    EXPECT_EQ(std::system(("desktop-file-validate '" + item->file() + "' >&2").c_str()), 0);
    EXPECT_THAT(readFile(item->file()), testing::HasSubstr("Hidden=true"));
    EXPECT_EQ(insert(url.get())->file(), item->file());
    EXPECT_THAT(files(), ElementsAre("org.korvex.Test.desktop"));
}

TEST_F(SharedFileListTest, WhatCantBeWrittenFails) {
    const auto url = makeTestApplication(kSandbox / "A.app");
    const auto none = CFURLCreateFromFileSystemRepresentation("/nowhere.app", true);
    EXPECT_FALSE(insert(none.get()));
    EXPECT_FALSE(LSSharedFileListCreate(CFSTR("kLSSharedFileListRecentApplications")));
    EXPECT_TRUE(insert(url.get()));
    const auto snapshot = LSSharedFileListCopySnapshot(list.get(), nullptr);
    const auto* item = dynamicCFCast<LSSharedFileListItem>(snapshot->items()[0].get());

    fs::permissions(kFolder, fs::perms(0555));
    fs::permissions(kSandbox, fs::perms(0755));
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0) {
        ASSERT_EQ(seteuid(kNobody), 0); // root writes everywhere
    }
    EXPECT_EQ(LSSharedFileListItemRemove(list.get(), item), permErr);
    EXPECT_FALSE(insert(url.get()));
    ASSERT_EQ(seteuid(getuid()), 0);
    fs::permissions(kFolder, fs::perms(0755));
    EXPECT_THAT(files(), ElementsAre("org.korvex.Test.desktop"));
    writeFile(kSandbox / "home/file", "");
    setenv("XDG_CONFIG_HOME", (kSandbox / "home/file").c_str(), 1);
    EXPECT_FALSE(LSSharedFileListCopySnapshot(list.get(), nullptr));
    EXPECT_FALSE(insert(url.get()));
}

} // namespace
