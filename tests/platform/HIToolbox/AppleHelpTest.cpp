// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/AppleHelp.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QDesktopServices>
#include <QTextBrowser>

namespace {

const std::string kName = "<key>CFBundleHelpBookName</key><string>Test Help</string>";
const std::string kFolder = "<key>CFBundleHelpBookFolder</key><string>my help</string>";

using AppleHelpTest = ApplicationTest<QApplication>;

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

    const std::string folder =
        "file://" + bundle.parent_path().string() + "/Test%20Pane.prefPane/Contents/Resources/";
    for (const auto& [page, anchor, opened] : cases) {
        SCOPED_TRACE(page ? page : "start page");
        QTextBrowser desktop;
        QDesktopServices::setUrlHandler(QStringLiteral("file"), &desktop, "setSource");
        EXPECT_EQ(AHGotoPage(CFSTR("Test Help"), constantText(page), constantText(anchor)),
                  opened ? OSStatus{noErr} : kAHInternalErr);
        EXPECT_EQ(desktop.source().toString(QUrl::FullyEncoded).toStdString(),
                  opened ? folder + opened : "");
        QDesktopServices::unsetUrlHandler(QStringLiteral("file"));
    }
}

} // namespace
