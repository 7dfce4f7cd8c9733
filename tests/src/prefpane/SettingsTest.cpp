#include "src/prefpane/PreferenceWrangler.h"
#include "tests/support/PaneFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QSlider>
#include <QVariant>

namespace {

/// Every control, its field and its group: clicked in the real form, seen by the real agent.
class SettingsTest : public PaneTest {
protected:
    bool isEnabled(const char* name) { return find(name)->isEnabled(); }

    bool isChecked(const char* name) { return find<QAbstractButton>(name)->isChecked(); }

    std::string text(const char* name) { return find<QLabel>(name)->text().toStdString(); }
};

#define AT(field) offsetof(PrefsRecord, field)

TEST_F(SettingsTest, EachStepButtonMovesItsOwnFieldAndReportsItsGroup) {
    enum Kind { kReal, kInteger };

    constexpr ChangeMask kLook = kChangeScanLineLook | kChangeGuideLineLook;

    const struct {
        const char* button;
        std::size_t offset;
        Kind kind;
        double value;
        ChangeMask mask;
        const char* label;
        const char* shown;
    } cases[] = {
        {"lineScanTimeIncBtn", AT(lineScanTime), kReal, 10.5, kChangeScanSpeed, "lineScanTimeLabel",
         " 10.5 sec"},
        {"pointerScanTimeDecBtn", AT(pointerScanTime), kReal, 9.5, kChangeScanSpeed,
         "pointerScanTimeLabel", "  9.5 sec"},
        {"menuScanSpeedScaleFactorIncBtn", AT(menuScanSpeedScaleFactor), kReal, 65,
         kChangeScanSpeed, "menuScanSpeedScaleFactorLabel", " 65%"},
        {"autoRepeatTimeIncBtn", AT(autoRepeatTime), kReal, 4.5, kChangeScanSpeed,
         "autoRepeatTimeLabel", "  4.5 sec"},
        {"clickTimeIncBtn", AT(clickDuration), kReal, 71, kChangeScanSpeed, "clickTimeLabel",
         " 71 ms"},
        {"preScanDelayTimeIncBtn", AT(preScanDelay), kReal, 2, kChangeTriggers,
         "preScanDelayTimeLabel", "  2.0 sec"},
        {"inverseReleaseTimeDecBtn", AT(inverseReleaseTime), kReal, 1.5, kChangeTriggers,
         "inverseReleaseTimeLabel", "  1.5 sec"},
        {"stepScanCancelTimeIncBtn", AT(stepScanCancelTime), kReal, 10.5, kChangeTriggers,
         "stepScanCancelTimeLabel", " 10.5 sec"},
        {"minTriggerDurationIncBtn", AT(minTriggerDuration), kReal, 0.5, kChangeTriggers,
         "minTriggerDurationLabel", "  0.5 sec"},
        {"afterClickDelayIncBtn", AT(afterClickDelay), kReal, 0.5, kChangeTriggers,
         "afterClickDelayLabel", "  0.5 sec"},
        {"lineTransparencyIncBtn", AT(lineTransparency), kReal, 6, kChangeScanLineLook,
         "lineTransparencyLabel", "  6%"},
        {"guideTransparencyDecBtn", AT(lineGhostTransparency), kReal, 74, kChangeGuideLineLook,
         "guideTransparencyLabel", " 74%"},
        {"volumeIncBtn", AT(soundLevel), kInteger, 51, kChangeSounds, "volumeLabel", " 51"},
        {"lineThicknessIncBtn", AT(lineThickness), kInteger, 8, kLook, nullptr, nullptr},
        {"borderGapDecBtn", AT(borderGap), kInteger, 3, kChangePalette, nullptr, nullptr},
        {"buttonGapIncBtn", AT(buttonGap), kInteger, 7, kChangePalette, nullptr, nullptr},
    };

    openWithAgent();
    for (const auto& test : cases) {
        click(test.button);
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), test.mask) << test.button;
        const double value = test.kind == kReal ? recordField<double>(event, test.offset)
                                                : recordField<SInt32>(event, test.offset);
        EXPECT_DOUBLE_EQ(value, test.value) << test.button;
        if (test.label) {
            EXPECT_EQ(text(test.label), test.shown);
        }
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(SettingsTest, EachCheckBoxAndRadioWritesItsOwnFieldAndReportsItsGroup) {
    const struct {
        const char* button;
        std::size_t offset;
        UInt8 value;
        ChangeMask mask;
    } cases[] = {
        {"canScanMenuBarCheck", AT(canScanMenuBar), 0, 0},
        {"lineScanCanEndKybdModeCheck", AT(lineScanCanEndKybdMode), 0, kChangeKeyboardMode},
        {"useScanAccelerationCheck", AT(useScanAcceleration), 0, kChangeScanSpeed},
        {"wantHotKeyTriggerCheck", AT(wantHotKeyTrigger), 0, kChangeTriggers},
        {"wantMouseClickTriggerCheck", AT(wantMouseClickTrigger), 0, kChangeTriggers},
        {"playClickSoundsCheck", AT(playClickSounds), 0, kChangeSounds},
        {"playDragPrompts", AT(playDragPrompts), 0, kChangeSounds},
        {"playDragPrompts", AT(playDragPrompts), 1, kChangeSounds},
        {"launchAtLogin", AT(launchAtLogin), 0, kChangeLaunch},
        {"launchAtLogin", AT(launchAtLogin), 1, kChangeLaunch},
        {"activateAtLaunch", AT(activateAtLaunch), 0, kChangeLaunch},
        {"triggerOnReleaseRadios1", AT(triggerOnRelease), 1, kChangeTriggers},
        {"scanModeRadios1", AT(scanMode), 1, kChangeTriggers},
        {"scanModeRadios2", AT(scanMode), 2, kChangeTriggers},
        {"scanModeRadios0", AT(scanMode), 0, kChangeTriggers},
        {"masterOnOffRadios0", AT(on), 0, kChangeOnOff},
        {"masterOnOffRadios1", AT(on), 1, kChangeOnOff},
    };

    openWithAgent();
    for (const auto& test : cases) {
        click(test.button);
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), test.mask) << test.button;
        EXPECT_EQ(recordField<UInt8>(event, test.offset), test.value) << test.button;
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(SettingsTest, LoadingShowsTheRecordAndReportsNothing) {
    prefs.on = prefs.canScanMenuBar = prefs.playDragPrompts = 0;
    prefs.scanMode = 2;
    prefs.triggerOnRelease = prefs.useScanArea = 1;
    prefs.scanArea = {0, 0, 10, 10};
    prefs.lineScanTime = 1.0;
    prefs.pointerScanTime = 600; // beyond the slider: shown as it is
    prefs.lineThickness = 50;
    prefsWereChanged();
    prefsFlushChanges();
    prefs = PrefsRecord();
    openWithAgent();
    for (const char* name : {"masterOnOffRadios0", "scanModeRadios2", "triggerOnReleaseRadios1",
                             "useScanAreaRadios1", "playClickSoundsCheck"})
        EXPECT_TRUE(isChecked(name)) << name;
    for (const char* name : {"canScanMenuBarCheck", "playDragPrompts"})
        EXPECT_FALSE(isChecked(name)) << name;
    for (const char* name : {"lineScanTimeDecBtn", "pointerScanTimeIncBtn", "lineThicknessIncBtn",
                             "triggerOnReleaseRadios0", "triggerOnReleaseRadios1"})
        EXPECT_FALSE(isEnabled(name)) << name;
    EXPECT_EQ(text("pointerScanTimeLabel"), "600.0 sec");
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(SettingsTest, TriggersOnReleaseOnlyInTheFirstScanMode) {
    openWithAgent();
    for (const auto& [radio, enabled] : {std::pair("scanModeRadios1", false),
                                         {"scanModeRadios0", true},
                                         {"scanModeRadios2", false}}) {
        click(radio);
        EXPECT_EQ(isEnabled("triggerOnReleaseRadios1"), enabled) << radio;
    }
}

TEST_F(SettingsTest, AnEmptyScanAreaCantBeUsed) {
    prefs.useScanArea = 1;
    prefs.scanArea = {100, 100, 0, 50};
    openWithAgent();
    const QJsonObject event = agentLog_.next();
    EXPECT_EQ(event["mask"].toInteger(), kChangeScanArea);
    EXPECT_EQ(recordField<UInt8>(event, AT(useScanArea)), 0);
    EXPECT_TRUE(isChecked("useScanAreaRadios0"));
    EXPECT_FALSE(isEnabled("useScanAreaRadios1"));
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(SettingsTest, AUsableScanAreaIsSwitchedOnAndOff) {
    prefs.scanArea = {-100, 0, 640, 480};
    openWithAgent();
    click("useScanAreaRadios1");
    EXPECT_EQ(recordField<UInt8>(agentLog_.next(), AT(useScanArea)), 1);
    click("useScanAreaRadios0");
    EXPECT_EQ(recordField<UInt8>(agentLog_.next(), AT(useScanArea)), 0);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(SettingsTest, TheLoginItemFollowsTheSetting) {
    const auto folder = std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "autostart";
    const auto entry = folder / (std::string(kAgentBundleIDText) + ".desktop");
    openWithAgent();
    EXPECT_THAT(readFile(entry), testing::HasSubstr("Korvex Agent.app/Contents/Linux/"));
    const auto written = std::filesystem::last_write_time(entry);
    click("activateAtLaunch");
    EXPECT_EQ(std::filesystem::last_write_time(entry), written) << "nothing has changed for it";
    click("launchAtLogin");
    EXPECT_FALSE(std::filesystem::exists(entry));
    click("activateAtLaunch");
    EXPECT_FALSE(std::filesystem::exists(entry));
    click("launchAtLogin");
    EXPECT_TRUE(std::filesystem::exists(entry));

    std::filesystem::remove_all(folder);
    writeFile(folder, "in the folder's place");
    pane_->willSelect();
    EXPECT_TRUE(isChecked("launchAtLogin")) << "the setting, whether or not it could be done";
    EXPECT_TRUE(isEnabled("launchAtLogin"));
}

TEST_F(SettingsTest, WithoutTheAgentsBundleTheLoginItemsStayAsTheyAre) {
    open();
    pane_->didUnselect();
    const auto folder = std::filesystem::path(std::getenv("XDG_CONFIG_HOME")) / "autostart";
    std::filesystem::remove_all(folder);
    prefs.launchAtLogin = 1;
    prefs.activateAtLaunch = 0;
    theWrangler->updateLaunchUI(); // the link to the agent is down
    EXPECT_FALSE(std::filesystem::exists(folder));
    EXPECT_TRUE(isChecked("launchAtLogin"));
    EXPECT_FALSE(isChecked("activateAtLaunch"));
    pane_->willSelect(); // for the visit that ends with the test
}

TEST_F(SettingsTest, EveryDefaultLiesInsideItsSlidersRange) {
    open();
    for (const auto* slider : window()->findChildren<QSlider*>()) {
        const std::string name = slider->objectName().toStdString();
        EXPECT_TRUE(slider->value() >= slider->minimum() && slider->value() < slider->maximum())
            << name;
        EXPECT_FALSE(slider->accessibleName().isEmpty()) << name;
    }
}

TEST_F(SettingsTest, EveryControlIsNamedReachableAndLargeEnough) {
    open();
    for (auto* widget : window()->findChildren<QWidget*>()) {
        const bool isControl = widget->focusPolicy() & Qt::TabFocus;
        if (!isControl || qobject_cast<QAbstractScrollArea*>(widget) ||
            widget->objectName().startsWith(QLatin1String("qt_")))
            continue;
        const std::string name = widget->objectName().toStdString();
        find(name.c_str());
        QTest::qWait(0); // for the page's layout
        if (!widget->isVisible())
            continue; // the tab bar's arrows, which show when it is too narrow
        EXPECT_GE(widget->height(), 24) << name;
        EXPECT_GE(widget->width(), 24) << name;
        auto* interface = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << name;
    }
}

} // namespace
