#include "platform/HIToolbox/AppleHelp.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTest>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string kName = "<key>CFBundleHelpBookName</key><string>Test Help</string>";
const std::string kFolder = "<key>CFBundleHelpBookFolder</key><string>my help</string>";

class AppleHelpTest : public testing::Test {
protected:
    AppleHelpTest() {
        writeFile(bundle_ / "Contents/Info.plist", dictionaryFile(kName + kFolder));
        for (const char* page : {"my help/index.html", "my help/tabs/scanning tab.html",
                                 "my help 2/page.html", "outside.html"})
            writeFile(resources_ / page, "<html></html>");
        fs::create_symlink(resources_ / "outside.html", resources_ / "my help/link.html");
        fs::create_symlink("index.html", resources_ / "my help/start.html");
    }

    ~AppleHelpTest() override {
        application_.reset();
        display_.kill();
        display_.waitForFinished();
    }

    OSStatus registerBook() {
        FSRef ref;
        const auto url = CFURLCreateFromFileSystemRepresentation(bundle_.c_str(), true);
        EXPECT_TRUE(CFURLGetFSRef(url.get(), &ref));
        return AHRegisterHelpBook(&ref);
    }

    /// On a display, where Qt opens pages by the xdg-open that it finds; this one notes its
    /// argument and then hangs. False without a display.
    bool startDisplay() {
        display_.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
        const fs::path opener = sandbox_ / "bin/xdg-open";
        writeFile(opener, "#!/bin/sh\nprintf '%s\\n' \"$*\" >>'" + opened_.string() +
                              "'\nexec sleep 30 >&- 2>&-\n");
        fs::permissions(opener, fs::perms::owner_all);
        setenv("PATH", (opener.parent_path().string() + ':' + std::getenv("PATH")).c_str(), 1);
        if (!display_.waitForStarted() || !display_.waitForReadyRead(20'000))
            return false;
        setenv("DISPLAY", (":" + display_.readLine().trimmed()).constData(), 1);
        setenv("QT_QPA_PLATFORM", "xcb", 1);
        application_ = std::make_unique<QGuiApplication>(argc_, argv_);
        return true;
    }

    /// What xdg-open was called with, the last time.
    std::string nextOpened() {
        std::string line;
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return (line = readFile(opened_)).ends_with('\n'); }, 20'000));
        fs::remove(opened_);
        return line.substr(0, line.find('\n'));
    }

    fs::path sandbox_ = makeSandboxFolder("");
    fs::path bundle_ = makeSandboxFolder("Test Pane.prefPane");
    fs::path resources_ = bundle_ / "Contents/Resources";
    fs::path opened_ = sandbox_ / "opened";

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QProcess display_;
    std::unique_ptr<QGuiApplication> application_;
};

TEST_F(AppleHelpTest, ABundleWithoutAWholeBookRegistersNone) {
    for (const std::string& info :
         {kName, kFolder, kName + "<key>CFBundleHelpBookFolder</key><string>gone</string>",
          kName + "<key>CFBundleHelpBookFolder</key><string>my help 2</string>",
          kName + "<key>CFBundleHelpBookFolder</key><string>../Resources/my help</string>",
          kFolder + "<key>CFBundleHelpBookName</key><true/>"}) {
        writeFile(bundle_ / "Contents/Info.plist", dictionaryFile(info));
        EXPECT_EQ(registerBook(), kAHInternalErr) << info;
    }
    writeFile(bundle_ / "Contents/Info.plist", "rubbish");
    EXPECT_EQ(registerBook(), kAHInternalErr);
    EXPECT_EQ(AHGotoPage(CFSTR("Test Help"), nullptr, nullptr), kAHInternalErr);
}

TEST_F(AppleHelpTest, OpensThePagesOfTheBookAndNoOthers) {
    if (!startDisplay())
        GTEST_SKIP() << "there is no Xvfb";
    ASSERT_EQ(registerBook(), noErr);

    const struct {
        const char *book, *page, *anchor;
        const char* opened; ///< within the resources; null: nothing
    } cases[] = {
        {"Test Help", nullptr, nullptr, "my%20help/index.html"},
        {"Test Help", "tabs/scanning tab.html", nullptr, "my%20help/tabs/scanning%20tab.html"},
        {"Test Help", "start.html", "on off", "my%20help/index.html#on%20off"},
        {"Test Help", "tabs/../index.html", nullptr, "my%20help/index.html"},
        {"Test Help", "../outside.html", nullptr, nullptr},
        {"Test Help", "../my help 2/page.html", nullptr, nullptr},
        {"Test Help", "link.html", nullptr, nullptr},
        {"Test Help", "/etc/passwd", nullptr, nullptr},
        {"Test Help", "gone.html", nullptr, nullptr},
        {"Test Help", "tabs", nullptr, nullptr},
        {"Test Help", "", nullptr, nullptr},
        {"Other Help", nullptr, nullptr, nullptr},
        {nullptr, nullptr, nullptr, nullptr},
        {"Test Help", nullptr, nullptr, "my%20help/index.html"}, // and none of those before it
    };

    const auto text = [](const char* ascii) { return ascii ? CFSTR(ascii) : nullptr; };
    const std::string prefix =
        "file://" + sandbox_.string() + "Test%20Pane.prefPane/Contents/Resources/";
    for (const auto& row : cases) {
        SCOPED_TRACE(row.page ? row.page : "start page");
        const OSStatus result = AHGotoPage(text(row.book), text(row.page), text(row.anchor));
        EXPECT_EQ(result, row.opened ? OSStatus{noErr} : kAHInternalErr);
        if (row.opened) {
            EXPECT_EQ(nextOpened(), prefix + row.opened);
        }
    }
}

} // namespace
