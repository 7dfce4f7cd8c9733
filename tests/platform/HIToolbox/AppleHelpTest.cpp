// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/AppleHelp.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QTextBrowser>

namespace {

const std::string kName = "<key>CFBundleHelpBookName</key><string>Test Help</string>";
const std::string kFolder = "<key>CFBundleHelpBookFolder</key><string>my help</string>";

class AppleHelpTest : public ApplicationTest<QApplication> {
protected:
    /// Puts a desktop's opener first in $PATH. It notes what it opens and ends with that status.
    void makeOpener(int status) {
        const fs::path folder = makeSandboxFolder("bin"), opener = folder / "xdg-open";
        const std::string file = "'" + opened_.string() + "'";
        writeFile(opener, "#!/bin/sh\nprintf %s \"$1\" >" + file + ".new; mv " + file + ".new " +
                              file + "; exit " + std::to_string(status) + "\n");
        fs::permissions(opener, fs::perms::owner_all);
        qputenv("PATH", (folder.string() + ":" + qgetenv("PATH").toStdString()).c_str());
    }

    /// What the opener was told to open. Empty if it wasn't started.
    std::string opened(bool isExpected) {
        EXPECT_TRUE(!isExpected || QTest::qWaitFor([this] { return fs::exists(opened_); }));
        QTest::qWait(20);
        const std::string address = fs::exists(opened_) ? readFile(opened_) : "";
        fs::remove(opened_);
        return address;
    }

    static QTextBrowser* viewer() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* text = window->findChild<QTextBrowser*>(); text && window->isVisible())
                return text;
        return nullptr;
    }

private:
    fs::path opened_ = makeSandboxFolder("opened") / "address";
};

TEST_F(AppleHelpTest, OpensThePagesOfAWholeBookAndNoOthers) {
    const fs::path bundle = makeSandboxFolder("Test Pane.prefPane");
    const fs::path resources = bundle / "Contents/Resources";
    for (const char* page : {"my help/index.html", "my help/tabs/scanning tab.html",
                             "my help 2/page.html", "outside.html"})
        writeFile(resources / page, "<html></html>");
    fs::create_symlink(resources / "outside.html", resources / "my help/link.html");
    fs::create_symlink("index.html", resources / "my help/start.html");
    const auto registerBook = [&](const std::string& info) {
        writeFile(bundle / "Contents/Info.plist", dictionaryFile(info));
        FSRef ref;
        const auto url = CFURLCreateFromFileSystemRepresentation(bundle.c_str(), true);
        EXPECT_TRUE(CFURLGetFSRef(url.get(), &ref));
        return AHRegisterHelpBook(&ref);
    };
    for (const std::string& info :
         {kName, kName + "<key>CFBundleHelpBookFolder</key><string>gone</string>",
          kName + "<key>CFBundleHelpBookFolder</key><string>../Resources/my help</string>",
          kFolder + "<key>CFBundleHelpBookName</key><true/>"})
        EXPECT_EQ(registerBook(info), kAHInternalErr) << info;
    EXPECT_EQ(AHGotoPage(CFSTR("Test Help"), nullptr, nullptr), kAHInternalErr);
    ASSERT_EQ(registerBook(kName + kFolder), noErr);

    const struct {
        const char *page, *anchor;
        const char* opened; ///< within the resources; null: nothing
    } cases[] = {{nullptr, nullptr, "my%20help/index.html"},
                 {"tabs/scanning tab.html", nullptr, "my%20help/tabs/scanning%20tab.html"},
                 {"start.html", "on off", "my%20help/index.html#on%20off"},
                 {"../outside.html", nullptr, nullptr},
                 {"../my help 2/page.html", nullptr, nullptr},
                 {"link.html", nullptr, nullptr},
                 {"/etc/passwd", nullptr, nullptr},
                 {"tabs", nullptr, nullptr}};

    makeOpener(0);
    const std::string folder =
        "file://" + bundle.parent_path().string() + "/Test%20Pane.prefPane/Contents/Resources/";
    for (const auto& [page, anchor, opened] : cases) {
        SCOPED_TRACE(page ? page : "start page");
        EXPECT_EQ(AHGotoPage(CFSTR("Test Help"), constantText(page), constantText(anchor)),
                  opened ? OSStatus{noErr} : kAHInternalErr);
        EXPECT_EQ(this->opened(opened != nullptr), opened ? folder + opened : "");
        EXPECT_EQ(viewer(), nullptr);
    }
    makeOpener(3); // it found no browser
    EXPECT_EQ(AHGotoPage(CFSTR("Test Help"), CFSTR("tabs/scanning tab.html"), nullptr), noErr);
    ASSERT_TRUE(QTest::qWaitFor([] { return viewer() != nullptr; }));
    EXPECT_EQ(viewer()->source().fileName(), "scanning tab.html");
    EXPECT_THAT(viewer()->window()->findChild<QLabel*>()->text().toStdString(),
                testing::HasSubstr((resources / "my help/tabs/scanning tab.html").string()));
    ASSERT_TRUE(QTest::qWaitForWindowActive(viewer()->window()));
    QTest::keyClick(viewer(), Qt::Key_Escape);
    EXPECT_TRUE(QTest::qWaitFor([] { return viewer() == nullptr; }));
}

} // namespace
