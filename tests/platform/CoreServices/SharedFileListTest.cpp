// SPDX-License-Identifier: MIT
#include "platform/CoreServices/SharedFileList.h"
#include "tests/support/TestApplication.h"

namespace {

const fs::path kSandbox = std::getenv("KORVEX_TEST_SANDBOX");
const fs::path kFolder = kSandbox / "home/.config/autostart";

class SharedFileListTest : public testing::Test {
protected:
    std::vector<const LSSharedFileListItem*> items() {
        snapshot_ = LSSharedFileListCopySnapshot(list_.get(), nullptr);
        std::vector<const LSSharedFileListItem*> all;
        for (const auto& item : snapshot_->items())
            all.push_back(dynamicCFCast<LSSharedFileListItem>(item.get()));
        return all;
    }

    /// The new item's file.
    static std::string insert(const CFURL* url, LSSharedFileList* list) {
        const auto item = LSSharedFileListInsertItemURL(list, kLSSharedFileListItemLast, nullptr,
                                                        nullptr, url, nullptr, nullptr);
        return item ? item->file() : "none";
    }

    static bool isSound(const std::string& file) {
        return std::system(("desktop-file-validate '" + file + "' >&2").c_str()) == 0;
    }

    CFRef<CFArray> snapshot_;
    CFRef<LSSharedFileList> list_ = LSSharedFileListCreate(kLSSharedFileListSessionLoginItems);
};

TEST_F(SharedFileListTest, EntriesAreSoundAndLeadBackToTheirApplication) {
    for (const char* name : {"With  blanks.app", "\"Quotes' `and` $HOME\\n.app", "100 %f %% %.app",
                             "~&;|<>#?*(){}=!.app", "Ünïcödé 🙂.app", "tab\tand\nline.app"}) {
        SCOPED_TRACE(name);
        const auto url = makeTestApplication(kSandbox / name);
        EXPECT_TRUE(isSound(insert(url.get(), list_.get())));
        const auto all = items();
        ASSERT_EQ(all.size(), 1u);
        CFRef<CFURL> resolved;
        ASSERT_EQ(LSSharedFileListItemResolve(all[0], 3, &resolved, nullptr), noErr);
        EXPECT_EQ(resolved->path(), kSandbox / name);
        EXPECT_EQ(LSSharedFileListItemRemove(list_.get(), all[0]), noErr);
    }
}

TEST_F(SharedFileListTest, AnEntrysNameIsTakenOnlyFromAnotherOfItsOwn) {
    const auto url = makeTestApplication(kSandbox / "A.app");
    const std::string run = "/A.app/Contents/Linux/run";
    for (const auto& [text, written] :
         {std::pair(desktopEntry("\"" + kSandbox.string() + run + "\"") + "OnlyShowIn=Other;\n",
                    "-2"),
          {desktopEntry("/gone" + run) + "TryExec=/gone\n", ""}, // from where it was before
          {desktopEntry("other") + "Hidden=true\n", "-2"},
          {"???", "-2"}}) {
        fs::remove_all(kFolder);
        writeFile(kFolder / "org.korvex.Test.desktop", text);
        EXPECT_EQ(insert(url.get(), list_.get()),
                  kFolder / (std::string("org.korvex.Test") + written + ".desktop"));
    }
}

} // namespace
