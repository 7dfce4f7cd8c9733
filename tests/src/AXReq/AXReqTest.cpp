#include "src/AXReq/axreq.h"

#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "tests/support/AccessibilityService.h"
#include "tests/support/PaneFixture.h"

#include <QCheckBox>
#include <QDesktopServices>
#include <QElapsedTimer>
#include <QPushButton>
#include <QTextBrowser>

#include <ctime>
#include <dlfcn.h>
#include <optional>

namespace {

constexpr std::time_t kDay = 86400;
constexpr SInt32 kNever = 0x7FFFFFFF;

std::optional<std::time_t> fakeTime;

} // namespace

// In the C library's place.
extern "C" std::time_t time(std::time_t* result) noexcept {
    static const auto real =
        reinterpret_cast<std::time_t (*)(std::time_t*)>(dlsym(RTLD_NEXT, "time"));
    const std::time_t now = fakeTime ? *fakeTime : real(nullptr);
    if (result)
        *result = now;
    return now;
}

namespace {

class AXReqTest : public PaneTest {
protected:
    AXReqTest() {
        std::filesystem::remove(noticeMutingFile());
        fakeTime = 20'000 * kDay;
    }

    ~AXReqTest() override { axReqCancel(); }

    /// The day of the last notice as the file has it; none without one.
    static std::optional<SInt32> storedDay() {
        const std::string text =
            readFile(std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences" /
                     (std::string(kAgentBundleIDText) + ".plist"));
        const std::string key = "<key>axReqLastNoticeDate</key>";
        const auto place = text.find(key);
        if (place == std::string::npos)
            return std::nullopt;
        return std::stoi(text.substr(text.find("<integer>", place) + 9));
    }

    /// The notice on the pane's window, or null.
    QWidget* notice() {
        auto* sheet = window()->findChild<QWidget*>(QStringLiteral("sheet"));
        return sheet && sheet->isVisible() ? sheet : nullptr;
    }

    template <class Widget>
    Widget* part(const char* name) {
        return notice()->findChild<Widget*>(QLatin1String(name));
    }

    /// As the host does with one visit after the other.
    void selectAgain() {
        pane_->didUnselect();
        pane_->willSelect();
        pane_->didSelect();
    }
};

TEST_F(AXReqTest, WithAssistiveAccessOnNothingIsShownOrWritten) {
    AccessibilityService service;
    service.set(true);
    open();
    EXPECT_EQ(notice(), nullptr);
    EXPECT_EQ(storedDay(), std::nullopt);
    service.set(false);
    ASSERT_TRUE(QTest::qWaitFor([this] {
        selectAgain();
        return notice() != nullptr;
    })) << "switched off meanwhile";
}

TEST_F(AXReqTest, IsShownOnceADayUntilItIsToldNeverToComeBack) {
    open();
    ASSERT_NE(notice(), nullptr);
    EXPECT_EQ(storedDay(), 20'000);
    EXPECT_TRUE(part<QPushButton>("sheetDismiss")->hasFocus());
    QTest::mouseClick(part<QPushButton>("sheetDismiss"), Qt::LeftButton);
    EXPECT_EQ(notice(), nullptr);
    EXPECT_EQ(storedDay(), 20'000) << "nothing further";

    fakeTime = 20'001 * kDay - 1;
    selectAgain();
    EXPECT_EQ(notice(), nullptr) << "the same day";
    fakeTime = 20'001 * kDay;
    selectAgain();
    ASSERT_NE(notice(), nullptr) << "the next day";
    part<QCheckBox>("sheetNeverAgain")->click();
    QTest::keyClick(window()->focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(notice(), nullptr);
    EXPECT_EQ(storedDay(), kNever);
    fakeTime = 40'000 * kDay;
    selectAgain();
    EXPECT_EQ(notice(), nullptr);
    EXPECT_EQ(storedDay(), kNever);
}

TEST_F(AXReqTest, TheStoredDayDecides) {
    constexpr CFIndex k2038 = 24'855; // the last day of a 32-bit time_t

    const struct {
        CFIndex stored, day;
        bool isShown;
    } cases[] = {
        {0, 20'000, true},
        {19'999, 20'000, true},
        {20'000, 20'000, false},
        {20'001, 20'000, false}, // the clock was set back
        {-5, 20'000, true},
        {kNever, 20'000, false},
        {k2038, k2038 + 1, true},
        {k2038 + 1, k2038 + 1, false},
        {std::numeric_limits<CFIndex>::min(), 20'000, true},
        {std::numeric_limits<CFIndex>::max(), 20'000, false},
    };

    open();
    axReqCancel();
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.stored << " on " << test.day);
        const auto number = CFNumberCreate(kCFNumberSInt64Type, &test.stored);
        CFPreferencesSetAppValue(CFSTR("axReqLastNoticeDate"), number.get(), kAgentBundleID);
        fakeTime = test.day * kDay + 1;
        pane_->didSelect();
        EXPECT_EQ(notice() != nullptr, test.isShown);
        if (test.isShown) {
            EXPECT_EQ(storedDay(), test.day);
        }
        axReqCancel();
    }
    CFPreferencesSetAppValue(CFSTR("axReqLastNoticeDate"), CFSTR("yesterday"), kAgentBundleID);
    pane_->didSelect();
    EXPECT_NE(notice(), nullptr) << "no number at all";
    pane_->didSelect();
    EXPECT_NE(notice(), nullptr) << "the one that is shown stays";
}

TEST_F(AXReqTest, ClosesByItselfAfterHalfAMinute) {
    open();
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return notice() == nullptr; }, 40'000));
    EXPECT_NEAR(static_cast<double>(clock.elapsed()), 30'000, 1'000) << "milliseconds";
    EXPECT_EQ(storedDay(), 20'000);
}

TEST_F(AXReqTest, GoesWithThePane) {
    open();
    ASSERT_NE(notice(), nullptr);
    pane_->didUnselect();
    EXPECT_EQ(notice(), nullptr);
    EXPECT_EQ(window()->findChild<QWidget*>(QStringLiteral("sheet")), nullptr);
}

TEST_F(AXReqTest, TheButtonOpensTheDesktopsSettingsOrElseTheHelp) {
    const auto programs = makeSandboxFolder("bin");
    const auto log = programs / "log";
    writeFile(programs / "gnome-control-center", "#!/bin/sh\n: > " + log.string() + "\n");
    std::filesystem::permissions(programs / "gnome-control-center",
                                 std::filesystem::perms::owner_all);
    setenv("PATH", programs.c_str(), 1);
    setenv("XDG_CURRENT_DESKTOP", "GNOME", 1);
    open();
    part<QPushButton>("sheetOpen")->click();
    EXPECT_EQ(notice(), nullptr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return std::filesystem::exists(log); }, 10'000));
    EXPECT_EQ(storedDay(), 20'000);

    setenv("XDG_CURRENT_DESKTOP", "unheard-of", 1);
    QTextBrowser browser;
    QDesktopServices::setUrlHandler(QStringLiteral("file"), &browser, "setSource");
    fakeTime = *fakeTime + kDay;
    selectAgain();
    part<QPushButton>("sheetOpen")->click();
    EXPECT_TRUE(browser.source().path().endsWith(QStringLiteral("/help/access.html")));
}

TEST_F(AXReqTest, WithoutItsInterfaceFileThereIsNoNoticeUntilTomorrow) {
    const auto folder = makeSandboxFolder("Empty.prefPane");
    writeFile(folder / "Contents/Info.plist", dictionaryFile(""));
    const auto empty =
        CFBundleCreate(CFURLCreateFromFileSystemRepresentation(folder.c_str(), true).get());
    axReqCheckAXEnabled(empty.get(), nullptr);
    EXPECT_EQ(storedDay(), 20'000);
    open();
    EXPECT_EQ(notice(), nullptr) << "not tried again";
    fakeTime = *fakeTime + kDay;
    axReqCheckAXEnabled(nullptr, nullptr); // the test lies in no bundle
    EXPECT_EQ(storedDay(), 20'001);
}

TEST_F(AXReqTest, WithoutAParentItIsAWindowOfItsOwn) {
    open();
    axReqCancel();
    fakeTime = *fakeTime + kDay;
    axReqCheckAXEnabled(bundle_.get(), nullptr);
    QWidget* own = nullptr;
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->objectName() == QLatin1String("window") && each->isVisible())
            own = each;
    ASSERT_NE(own, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(own));
    own->findChild<QCheckBox*>(QStringLiteral("windowNeverAgain"))->click();
    QTest::keyClick(own, Qt::Key_Escape);
    EXPECT_FALSE(own->isVisible());
    EXPECT_EQ(storedDay(), kNever);
}

} // namespace
