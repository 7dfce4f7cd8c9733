#include "tests/support/PaneFixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTimer>

#include <cstddef>
#include <functional>

namespace {

#define AT(field) offsetof(PrefsRecord, field)

class ScanAreaTest : public PaneTest {
protected:
    /// Clicks the button and lets the user act on the overlay.
    void draw(const std::function<void(QWidget*)>& user) {
        QTimer::singleShot(0, [&] {
            for (QWidget* widget : QApplication::topLevelWidgets())
                if (widget->windowFlags() & Qt::X11BypassWindowManagerHint && widget->isVisible())
                    return user(widget);
            ADD_FAILURE() << "no overlay is shown";
        });
        click("scanAreaBtn");
    }

    std::string text() { return find<QLabel>("scanAreaText")->text().toStdString(); }

    bool isChecked(const char* name) { return find<QAbstractButton>(name)->isChecked(); }
};

void drag(QWidget* overlay, QPoint from, QPoint to) {
    QTest::mousePress(overlay, Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, overlay->mapToGlobal(QPointF(to)), Qt::NoButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(overlay, &move);
    QTest::mouseRelease(overlay, Qt::LeftButton, {}, to);
}

TEST_F(ScanAreaTest, AnAcceptedAreaIsStoredUsedAndReported) {
    openWithAgent();
    EXPECT_EQ(text(), "none");
    draw([](QWidget* overlay) {
        drag(overlay, {740, 530}, {100, 50});
        QTest::keyClick(overlay, Qt::Key_Return);
    });
    QJsonObject event = agentLog_.next();
    EXPECT_EQ(event["mask"].toInteger(), kChangeScanArea);
    EXPECT_EQ(recordField<UInt8>(event, AT(useScanArea)), 1);
    const auto area = recordField<ScanArea>(event, AT(scanArea));
    EXPECT_THAT((std::array{area.x, area.y, area.width, area.height}),
                testing::ElementsAre(100, 50, 640, 480));
    EXPECT_EQ(text(), "640 × 480 at 100, 50");
    EXPECT_TRUE(isChecked("useScanAreaRadios1"));

    draw([](QWidget* overlay) {
        drag(overlay, {10, 20}, {10, 20});
        QTest::keyClick(overlay, Qt::Key_Enter);
    });
    event = agentLog_.next();
    EXPECT_EQ(event["mask"].toInteger(), kChangeScanArea);
    EXPECT_EQ(recordField<UInt8>(event, AT(useScanArea)), 0);
    EXPECT_EQ(recordField<ScanArea>(event, AT(scanArea)).width, 0);
    EXPECT_EQ(text(), "none");
    EXPECT_TRUE(isChecked("useScanAreaRadios0"));
    EXPECT_FALSE(find("useScanAreaRadios1")->isEnabled());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(ScanAreaTest, GivingUpChangesAndReportsNothing) {
    prefs.scanArea = {1, 2, 3, 4};
    openWithAgent();
    draw([](QWidget* overlay) {
        drag(overlay, {10, 20}, {300, 400});
        QTest::keyClick(overlay, Qt::Key_Escape);
    });
    EXPECT_EQ(text(), "3 × 4 at 1, 2");
    EXPECT_TRUE(isChecked("useScanAreaRadios0"));
    EXPECT_EQ(prefs.scanArea.width, 3);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(ScanAreaTest, WhatTheAgentReportsIsShownWhileTheOverlayIsUp) {
    openWithAgent();
    draw([&](QWidget* overlay) {
        ProcessSerialNumber agent = findAgent();
        pid_t pid = 0;
        ASSERT_EQ(GetProcessPID(&agent, &pid), noErr);
        kill(pid, SIGUSR1);
        EXPECT_TRUE(QTest::qWaitFor([] { return prefs.on == 0; }, 10'000));
        QTest::keyClick(overlay, Qt::Key_Escape);
    });
    EXPECT_TRUE(isChecked("masterOnOffRadios0"));
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

/// A platform of Qt's whose windows can't cover the screen, as far as the layer knows.
struct OtherPlatform {
    OtherPlatform() { setenv("QT_QPA_PLATFORM", "minimal", 1); }
};

class NoOverlayTest : private OtherPlatform, public PaneTest {};

TEST_F(NoOverlayTest, TheUserIsToldWhyNoAreaCanBeDrawn) {
    prefs.scanArea = {1, 2, 3, 4};
    openWithAgent();
    click("scanAreaBtn");
    EXPECT_THAT(find<QLabel>("scanAreaText")->text().toStdString(),
                testing::HasSubstr("no window cover the screens"));
    EXPECT_EQ(prefs.scanArea.width, 3);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

} // namespace
