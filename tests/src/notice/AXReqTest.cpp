// SPDX-License-Identifier: MIT
#include "src/notice/axreq.h"

#include "platform/Accessibility/AXUIElement.h"
#include "platform/CoreFoundation/CFNumber.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "tests/support/AccessibilityService.h"
#include "tests/support/PaneFixture.h"

#include <QCheckBox>
#include <QElapsedTimer>

#include <ctime>

namespace {

constexpr std::time_t kDay = 86400;
constexpr SInt32 kNever = 0x7FFFFFFF;

std::time_t fakeTime = 20'000 * kDay;

} // namespace

// Replaces the C library's.
extern "C" std::time_t time(std::time_t* result) noexcept {
    if (result)
        *result = fakeTime;
    return fakeTime;
}

namespace {

class AXReqTest : public PaneTest {
protected:
    AXReqTest() {
        writeFile(noticeMutingFile(), dictionaryFile("<key>firstStepsSeen</key><true/>"));
    }

    ~AXReqTest() override { axReqCancel(); }

    /// The stored day of the last notice, or 0.
    static SInt32 storedDay() {
        const std::string text = readFile(storedFile());
        const auto key = text.find("axReqLastNoticeDate"), value = text.find("<integer>", key);
        return key == text.npos ? 0 : std::stoi(text.substr(value + 9));
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

    /// Begins another visit, as the host does.
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
    EXPECT_EQ(storedDay(), 0);
    service.set(false);
    ASSERT_TRUE(QTest::qWaitFor([this] { return selectAgain(), notice() != nullptr; }))
        << "switched off meanwhile";
}

TEST_F(AXReqTest, IsShownOnceADayUntilItIsToldNeverToComeBack) {
    open();
    ASSERT_NE(notice(), nullptr);
    EXPECT_EQ(storedDay(), 20'000);
    QTest::mouseClick(part<QPushButton>("sheetDismiss"), Qt::LeftButton);
    EXPECT_EQ(notice(), nullptr);
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
}

TEST_F(AXReqTest, ALateAnswerTakesTheNoticeAwayAndGivesTheDayBack) {
    AccessibilityService service;
    service.set(true);
    QTest::qWait(500); // it has heard that
    service.hang();
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(AXAPIEnabled());
    EXPECT_LT(clock.restart(), 1000) << "milliseconds";
    EXPECT_FALSE(AXAPIEnabled());
    EXPECT_LT(clock.elapsed(), 50) << "it doesn't ask again";
    open();
    ASSERT_NE(notice(), nullptr);
    EXPECT_EQ(storedDay(), 20'000);
    service.wakeUp();
    EXPECT_TRUE(QTest::qWaitFor([this] { return notice() == nullptr; }));
    EXPECT_EQ(storedDay(), 0);
}

TEST_F(AXReqTest, LettersOfWhatTheNoticeCoversDoNothingAndItsOwnAlwaysWork) {
    open();
    ASSERT_NE(notice(), nullptr);
    auto* covered = find<QAbstractButton>("canScanMenuBarCheck");
    const bool before = covered->isChecked();
    for (const Qt::Key key : {Qt::Key_K, Qt::Key_N}) {
        covered->setShortcut(Qt::ALT | key); // of the notice's own too
        QTest::keyClick(window()->windowHandle(), key, Qt::AltModifier);
        EXPECT_TRUE(QTest::qWaitFor([&] { return (notice() == nullptr) == (key == Qt::Key_N); }));
        EXPECT_EQ(covered->isChecked(), before);
    }
}

TEST_F(AXReqTest, ItKeepsTheKeyboardFromAllButACapture) {
    open();
    ASSERT_NE(notice(), nullptr);
    for (const auto key : {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Backtab, Qt::Key_Backtab}) {
        EXPECT_TRUE(notice()->isAncestorOf(window()->focusWidget()));
        QTest::keyClick(window()->focusWidget(), key);
    }
    find("lineScanTimeIncBtn")->setFocus(); // as a shortcut of the content's would
    EXPECT_TRUE(notice()->isAncestorOf(window()->focusWidget()));
    auto* capture = find("scanKey");
    capture->setFocus();
    EXPECT_TRUE(capture->hasFocus());
    QTest::keyClick(capture, Qt::Key_Escape);
    ASSERT_NE(notice(), nullptr);
    capture->clearFocus(); // it has what it waited for
    EXPECT_TRUE(notice()->isAncestorOf(window()->focusWidget()));
}

TEST_F(AXReqTest, TheStoredDayDecides) {
    constexpr CFIndex k2038 = 24'855; // the last day of a 32-bit time_t

    const struct {
        CFIndex stored, day;
        bool isShown;
    } cases[] = {
        {20'001, 20'000, false}, // the clock was set back
        {kNever, 40'000, false},
        {k2038 + 1, k2038 + 1, false},
        {std::numeric_limits<CFIndex>::min(), 20'000, true},
        {std::numeric_limits<CFIndex>::max(), 20'000, false},
    };

    open();
    for (const auto& test : cases) {
        SCOPED_TRACE(testing::Message() << test.stored << " on " << test.day);
        const auto number = CFNumberCreate(kCFNumberSInt64Type, &test.stored);
        CFPreferencesSetAppValue(CFSTR("axReqLastNoticeDate"), number.get(), kAgentBundleID);
        fakeTime = test.day * kDay + 1;
        selectAgain();
        EXPECT_EQ(notice() != nullptr, test.isShown);
        EXPECT_TRUE(!test.isShown || storedDay() == test.day);
    }
    CFPreferencesSetAppValue(CFSTR("axReqLastNoticeDate"), CFSTR("yesterday"), kAgentBundleID);
    selectAgain();
    EXPECT_NE(notice(), nullptr) << "no number at all";
}

TEST_F(AXReqTest, ItsButtonsSwitchAccessOnAndSayWhereThereAreNoSettings) {
    AccessibilityService service;
    open();
    QTest::mouseClick(part<QPushButton>("sheetOpen"), Qt::LeftButton);
    EXPECT_EQ(notice(), nullptr);
    EXPECT_THAT(told(), testing::HasSubstr("no settings that could be opened"));
    fakeTime = 20'001 * kDay;
    selectAgain();
    QTest::mouseClick(part<QPushButton>("sheetSwitchOn"), Qt::LeftButton);
    EXPECT_TRUE(QTest::qWaitFor([] { return AXAPIEnabled(); }));
}

TEST_F(AXReqTest, ClosesByItselfHalfAMinuteAfterTheLastKeyInIt) {
    open();
    QTest::qWait(4'000);
    QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
    QTest::mouseClick(notice(), Qt::LeftButton);
    QElapsedTimer clock;
    clock.start();
    ASSERT_TRUE(QTest::qWaitFor([this] { return notice() == nullptr; }, 40'000));
    EXPECT_NEAR(static_cast<double>(clock.elapsed()), 30'000, 1'000) << "milliseconds";
}

} // namespace
