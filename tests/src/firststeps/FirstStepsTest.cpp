// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPreferences.h"
#include "tests/support/PaneFixture.h"

#include <QProcess>

namespace {

/// The page at the first start, and its settings.
class FirstStepsTest : public PaneTest {
protected:
    FirstStepsTest() {
        writeFile(noticeMutingFile(), dictionaryFile("<key>axReqLastNoticeDate</key>"
                                                     "<integer>2147483647</integer>"));
    }

    QWidget* page() const { return window()->findChild<QWidget*>(QStringLiteral("firststeps")); }

    template <class Widget = QAbstractButton>
    Widget* part(const char* name) const {
        return page()->findChild<Widget*>(QString::fromLatin1(name));
    }

    void leaveBy(const char* button) {
        QTest::mouseClick(part(button), Qt::LeftButton);
        ASSERT_TRUE(QTest::qWaitFor([this] { return page() == nullptr; }));
    }

    bool isShownWhenOpened() {
        open();
        const bool isShown = page() && page()->isVisible();
        putAway();
        return isShown;
    }
};

TEST_F(FirstStepsTest, IsShownOnceAndOnlyToWhoHasNoSettings) {
    EXPECT_TRUE(isShownWhenOpened());
    EXPECT_TRUE(isShownWhenOpened()) << "it wasn't left, so it wasn't seen";
    open();
    QTest::keyClick(part("skipBtn"), Qt::Key_Escape);
    ASSERT_TRUE(QTest::qWaitFor([this] { return page() == nullptr; }));
    putAway();
    EXPECT_FALSE(isShownWhenOpened());
    writeFile(storedFile(), dictionaryFile("<key>scanner.scanMode</key><string>1</string>"));
    CFPreferencesAppSynchronize(kAgentBundleID);
    EXPECT_FALSE(isShownWhenOpened()) << "there are settings";
}

TEST_F(FirstStepsTest, TakesEditsOnTheOneRoadAndIsFoundAgain) {
    openWithAgent();
    EXPECT_TRUE(agentLog_.nextHold()) << "the keys, for the field with the focus";
    QTest::mouseClick(part("scanModeRadios1"), Qt::LeftButton, {}, {8, 8});
    EXPECT_FALSE(agentLog_.nextHold());
    EXPECT_EQ(agentLog_.nextMask(), kChangeTriggers);
    QTest::mouseClick(part("lineScanTimeIncBtn"), Qt::LeftButton);
    EXPECT_EQ(agentLog_.nextMask(), kChangeScanSpeed);
    EXPECT_EQ(prefs.scanMode, 1);
    EXPECT_EQ(double{prefs.lineScanTime}, 10.5);
    leaveBy("startBtn");
    EXPECT_TRUE(find<QAbstractButton>("scanModeRadios1")->isChecked());
    EXPECT_EQ(find("lineScanTimeLabel")->property("text"), QStringLiteral(" 10.5 sec"));

    click("firstStepsBtn");
    ASSERT_TRUE(page());
    EXPECT_EQ(part<QLabel>("agentState")->text(), QStringLiteral("It is running."));
    QTest::mouseClick(part("firstScanBtn"), Qt::LeftButton);
    EXPECT_TRUE(part<QLabel>("firstScanWords")->text().startsWith(QLatin1String("Hit!")));
    leaveBy("findMySpeed");
    EXPECT_TRUE(window()->findChild<QWidget*>(QStringLiteral("tryout"))) << "the try isn't open";
}

/// Where the compositor has the keys, its shortcuts tell of the switch.
TEST_F(FirstStepsTest, AShortcutOfTheDesktopIsAPressInTheField) {
    openWithAgent();
    EXPECT_TRUE(agentLog_.nextHold());
    const QString before = part<QLabel>("pressWords")->text();
    const auto tell = [](const char* word) {
        QProcess command; // it fails, since the agent hears the keys itself here
        command.start(QStringLiteral(KORVEX_HOST), {QString::fromLatin1(word)});
        EXPECT_TRUE(QTest::qWaitFor([&command] { return command.state() == QProcess::NotRunning; },
                                    10'000));
    };
    tell("press");
    EXPECT_TRUE(QTest::qWaitFor([&] { return part<QLabel>("pressWords")->text() == "Pressed."; }));
    tell("release");
    EXPECT_TRUE(QTest::qWaitFor([&] {
        const QString words = part<QLabel>("pressWords")->text();
        return words != "Pressed." && words != before;
    }));
}

} // namespace
