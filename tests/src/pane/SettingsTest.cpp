// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFPreferences.h"
#include "src/record/settingwords.h"
#include "src/scan/snapping.h"
#include "src/store/prefs.h"
#include "tests/support/PaneFixture.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QGroupBox>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QWheelEvent>

#include <algorithm>
#include <map>

namespace {

/// Every control with its field and its group: clicked in the real form, received by the real
/// agent.
class SettingsTest : public PaneTest {
protected:
    bool isEnabled(const char* name) { return find(name)->isEnabled(); }

    bool isChecked(const char* name) { return find<QAbstractButton>(name)->isChecked(); }

    /// Every control that Tab reaches, or that its row's value stands for, shown on its page.
    std::vector<QWidget*> controls() {
        std::vector<QWidget*> found;
        for (auto* widget : window()->findChildren<QWidget*>()) {
            static const QRegularExpression kOfNumbers("(Slider|Page(Dec|Inc)Btn)$");
            if ((!(widget->focusPolicy() & Qt::TabFocus) &&
                 !widget->objectName().contains(kOfNumbers)) ||
                qobject_cast<QAbstractScrollArea*>(widget) ||
                widget->objectName().startsWith(QLatin1String("qt_")))
                continue;
            find(widget->objectName().toLatin1());
            QTest::qWait(0);         // for the page's layout
            if (widget->isVisible()) // the tab bar's arrows show only when it is too narrow
                found.push_back(widget);
        }
        return found;
    }

    std::string text(const std::string& name) {
        return find<QLineEdit>(name.c_str())->text().toStdString();
    }
};

/// Undo, defaults, commands and screen readers call a setting by the words beside its control.
TEST_F(SettingsTest, ASettingHasOneName) {
    static const std::map<std::string, const char*> kOthers = {
        {"on", "masterHeading"},
        {"launchAtLogin", "launchAtLogin"},
        {"activateAtLaunch", "activateAtLaunch"},
        {"scanner.triggerOnRelease", "triggerOnReleaseRowTitle"},
        {"scanner.scanMode", "modeCard"},
        {"scanner.scanArea", "scanAreaRowTitle"},
        {"scanner.useScanArea", "areaCard"},
        {"scanner.lineColor", "lineColorRowTitle"},
        {"scanner.pointerImageName", "pointerRowTitle"},
        {"hotkeys.keys", "hotKeysCard"},
        {"palette.buttonSize", "buttonSizeTitle"},
        {"palette.buttonShape", "buttonShapeRowTitle"},
        {"palette.buttonActions", "paletteCard"},
    };
    const auto shown = [this](const std::string& name) {
        const auto* widget = find(name.c_str());
        const char* property = qobject_cast<const QGroupBox*>(widget) ? "title" : "text";
        return widget->property(property).toString().remove('&').toStdString();
    };

    open();
    for (const Setting& setting : kSettings) {
        const std::string outlet = setting.outlet ? setting.outlet : "";
        if (const auto other = kOthers.find(setting.key); other != kOthers.end()) {
            EXPECT_EQ(shown(other->second), setting.name);
        }
        if (outlet.empty())
            continue;
        EXPECT_EQ(shown(setting.isNumber() ? outlet + "Title" : outlet), setting.name);
        if (setting.isNumber()) {
            EXPECT_EQ(find((outlet + "Label").c_str())->accessibleName().toStdString(),
                      setting.name);
        }
    }
    for (const char* group : {"scanModeRadios", "useScanAreaRadios", "buttonShapeRadios"})
        EXPECT_TRUE(std::ranges::any_of(kSettings, [&](const Setting& setting) {
            return find(group)->accessibleName().toStdString() == setting.name;
        })) << group;
}

TEST_F(SettingsTest, EachControlChangesItsSettingAloneAndReportsItsGroup) {
    static const std::map<std::string, const char*> kOthers = {
        {"activateAtLaunch", "activateAtLaunch"},
        {"scanner.triggerOnRelease", "triggerOnReleaseRadios1"},
        {"scanner.scanMode", "scanModeRadios1"},
        {"palette.buttonContent", "buttonContentIconCheck"},
    };

    openWithAgent();
    for (const Setting& setting : kSettings) {
        const auto other = kOthers.find(setting.key);
        if (!setting.outlet && other == kOthers.end())
            continue;
        const PrefsRecord before = prefs;
        const std::string outlet = setting.outlet ? setting.outlet : other->second;
        SCOPED_TRACE(outlet);
        click((outlet + (setting.isNumber() ? "IncBtn" : "")).c_str());
        const QJsonObject event = agentLog_.next();
        EXPECT_EQ(event["mask"].toInteger(), setting.changes);
        auto sent = recordField<PrefsRecord>(event, 0);
        sent.snapping = prefs.snapping; // stays here
        const SettingSet changed = differences(before, sent);
        EXPECT_TRUE(changed.count() == 1 && &kSettings[firstOf(changed)] == &setting);
        if (setting.isNumber()) {
            EXPECT_DOUBLE_EQ(settingNumber(setting, sent),
                             settingNumber(setting, before) + setting.limits.step);
            EXPECT_THAT(text(outlet + "Label"), testing::EndsWith(settingText(setting, sent)));
        }
    }
    EXPECT_EQ(prefs.triggerOnRelease, 1);
    EXPECT_EQ(prefs.scanMode, 1);
    EXPECT_EQ(prefs.buttonContent, kButtonContentName);
    EXPECT_FALSE(isEnabled("triggerOnReleaseRadios1"));
}

TEST_F(SettingsTest, ASliderGoesToAClickAndLeavesTheWheelToThePage) {
    prefs.soundLevel = 10;
    openWithAgent();
    auto* slider = find<QSlider>("volumeSlider");
    const QPoint place = slider->rect().center();
    QTest::mouseClick(slider, Qt::LeftButton, {}, place);
    EXPECT_NEAR(prefs.soundLevel, 50, 1);
    EXPECT_EQ(agentLog_.nextMask(), kChangeSounds);
    QWheelEvent wheel(place, {}, {}, {0, 120}, {}, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(slider, &wheel);
    EXPECT_FALSE(wheel.isAccepted());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(SettingsTest, AColourThatIsTriedGoesBackOnlyWhenItIsCancelled) {
    constexpr ChangeMask kLook = kChangeScanLineLook | kChangeGuideLineLook;
    openWithAgent();
    const auto openPage = [this] {
        QTest::qWait(0);
        click("lineColor");
        return find("lineColor")->findChild<QDialog*>();
    };
    const auto press = [](const QDialog* page, const char* name) {
        for (auto* button : page->findChildren<QAbstractButton*>())
            if (button->accessibleName() == QLatin1String(name) ||
                button->text() == QString::fromUtf8(name))
                QTest::mouseClick(button, Qt::LeftButton);
    };
    auto* page = openPage();
    press(page, "Green");
    EXPECT_EQ(prefs.lineColor.green, 255);
    EXPECT_EQ(openPage(), page) << "there is one page";
    press(page, "&More colours…");
    auto* chooser = page->findChild<QColorDialog*>();
    chooser->setCurrentColor(QColor(1, 2, 3));
    QTest::keyClick(chooser, Qt::Key_Escape);
    EXPECT_EQ(prefs.lineColor.green, 255) << "as it was on the page";
    QTest::keyClick(page, Qt::Key_Escape);
    EXPECT_EQ(prefs.lineColor.green, 0);
    page = openPage();
    press(page, "Dark grey");
    window()->hide();
    EXPECT_FALSE(page->isVisible());
    EXPECT_EQ(prefs.lineColor.red, 64) << "it isn't cancelled";
    EXPECT_EQ(remainingMasks(), std::vector<ChangeMask>(5, kLook));
}

TEST_F(SettingsTest, ATypedValueIsTakenOrRefusedAndKept) {
    const struct {
        const char* field;
        const char* typed;
        const char* shown;
        ChangeMask mask = 0; ///< 0: refused, and nothing is sent
    } cases[] = {
        {"lineScanTimeLabel", "12,5", " 12.5 sec", kChangeScanSpeed},
        {"lineScanTimeLabel", "60.1 sec", " 12.5 sec"},
        {"lineScanTimeLabel", "1e1", " 12.5 sec"},
        {"lineThicknessLabel", "3.5", "  7 points"},
        {"volumeLabel", "loud", " 50"},
        {"buttonSizeLabel", "52", "52 points", kChangePalette},
        {"buttonWidthLabel", " 20 points", "20 points", kChangePalette},
        {"buttonSizeLabel", "101", "20 × 52"},
    };

    openWithAgent();
    for (const auto& [name, typed, shown, mask] : cases) {
        auto* field = find<QLineEdit>(name);
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, typed);
        QTest::keyClick(field, Qt::Key_Return);
        EXPECT_EQ(text(name), shown) << typed;
        if (mask) {
            EXPECT_EQ(agentLog_.nextMask(), mask) << typed;
        }
    }
    EXPECT_EQ(find<QLabel>("buttonSizeExplanation")->text(),
              "<b>Only 20 points to 100 points can be set.</b>");
    click("lineScanTimePageIncBtn");
    EXPECT_EQ(text("lineScanTimeLabel"), " 15.0 sec");
    EXPECT_THAT(remainingMasks(), testing::ElementsAre(kChangeScanSpeed));
}

TEST_F(SettingsTest, LoadingShowsTheRecordAndReportsNothingButAnEmptyScanArea) {
    prefs.on = prefs.canScanMenuBar = 0;
    prefs.scanMode = 2;
    prefs.useScanArea = 1;
    prefs.scanArea = {100, 100, 0, 50};
    prefs.lineScanTime = 1.0;
    prefs.pointerScanTime = 600; // beyond the slider: shown as it is
    openWithAgent();
    EXPECT_EQ(agentLog_.nextMask(), kChangeScanArea);
    EXPECT_EQ(prefs.useScanArea, 0);
    for (const char* name : {"masterOnOffRadios0", "scanModeRadios2", "useScanAreaRadios0"})
        EXPECT_TRUE(isChecked(name)) << name;
    EXPECT_FALSE(isChecked("canScanMenuBarCheck"));
    for (const char* name : {"lineScanTimeDecBtn", "pointerScanTimeIncBtn", "useScanAreaRadios1"})
        EXPECT_FALSE(isEnabled(name)) << name;
    EXPECT_EQ(text("pointerScanTimeLabel"), "600.0 sec");
}

TEST_F(SettingsTest, AScreenReaderMayAskForAScrollBarThatHasGone) {
    open();
    for (auto* area : window()->findChildren<QScrollArea*>()) {
        auto* interface = QAccessible::queryAccessibleInterface(area);
        EXPECT_EQ(interface->child(interface->childCount()), nullptr)
            << area->objectName().toStdString();
    }
}

TEST_F(SettingsTest, EveryControlThatChangesASettingDoesSoByItsAccessibilityAction) {
    // Controls that open a menu, a window or the help book, need another choice, or put settings
    // back.
    const QRegularExpression others(
        "^(helpBtn|findMySpeed|firstStepsBtn|undoBtn|redoBtn|sections.*|.*Grid|.*Label|scanAreaBtn|"
        "lineColor|snappingCheck|profile.*|.*ProfileBtn|importBtn|exportBtn|paletteView|"
        "sampleScanImage|"
        ".*PutBack|.*ResetBtn|"
        "(add|swapWith|setAction|remove)(Button)?Btn|.*KeyBtn|.*Key2Btn|builder.*)$");
    prefs.scanArea = {0, 0, 640, 480};
    for (const Setting& each : kSettings) // none comes to a limit
        if (each.isNumber() && each.size == sizeof(double))
            setSettingNumber(each, each.limits.minimum / 4 + each.limits.maximum * 3 / 4, prefs);
    prefs.borderGap = prefs.buttonGap = 30;
    openWithAgent();
    int tried = 0;
    for (auto* widget : controls()) {
        const std::string name = widget->objectName().toStdString();
        const auto* radio = qobject_cast<QRadioButton*>(widget);
        if (widget->objectName().contains(others) || (radio && radio->isChecked()) ||
            !widget->isEnabled())
            continue;
        find(name.c_str());
        QTest::keyClick(window(), Qt::Key_F13, Qt::AltModifier); // Alt isn't held any more
        if (auto* value = QAccessible::queryAccessibleInterface(widget)->valueInterface())
            value->setCurrentValue(value->minimumValue());
        else
            act(widget);
        EXPECT_EQ(agentLog_.nextName(), "SAPr") << name;
        ++tried;
    }
    EXPECT_GT(tried, 60);
}

/// The agent isn't told: it reads the file.
TEST_F(SettingsTest, ASettingBesideTheRecordIsStoredAtOnce) {
    muteNotice("<key>scanner.lineScanTime</key><string>20.0</string>");
    openWithAgent();
    auto* check = find<QCheckBox>("snappingCheck");
    const auto isStored = [] {
        CFPreferencesAppSynchronize(kAgentBundleID);
        return readSnapSettings().isOn;
    };
    EXPECT_TRUE(check->isChecked() && isStored());
    prefs.lineScanTime = 30; // isn't stored along
    act(check);
    EXPECT_FALSE(check->isChecked() || isStored());
    double time = 0;
    getPrefDouble(CFSTR("scanner.lineScanTime"), &time);
    EXPECT_EQ(time, 20);
    find<QPushButton>("undoBtn")->click();
    EXPECT_TRUE(check->isChecked() && isStored());
    EXPECT_EQ(agentLog_.next()["record"].toString().size(), 2 * kRecordSize) << "without it";
    agentLog_.next();
}

TEST_F(SettingsTest, EveryControlIsNamedReachableAndLargeEnough) {
    open();
    for (const auto* slider : window()->findChildren<QSlider*>())
        EXPECT_TRUE(slider->value() >= slider->minimum() && slider->value() < slider->maximum())
            << slider->objectName().toStdString() << " can't show its default";
    for (auto* widget : controls()) {
        const std::string name = widget->objectName().toStdString();
        EXPECT_GE(widget->height(), 44) << name;
        EXPECT_GE(widget->width(), 44) << name;
        auto* interface = QAccessible::queryAccessibleInterface(widget);
        EXPECT_FALSE(interface->text(QAccessible::Name).isEmpty()) << name;
    }
}

TEST_F(SettingsTest, SectionsAreReachedByKeyFromAnywhere) {
    open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    const auto* pages = window()->findChild<QStackedWidget*>(QStringLiteral("prefsTabs"));

    const struct {
        Qt::Key key;
        Qt::KeyboardModifiers modifiers;
        int section;
        bool goesIn; ///< the keyboard, from outside the page
    } presses[] = {
        {Qt::Key_4, Qt::AltModifier, 3, false},
        {Qt::Key_Tab, Qt::ControlModifier, 4, false},
        {Qt::Key_PageDown, Qt::ControlModifier, 0, false}, // after the last
        {Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier, 4, false},
        {Qt::Key_PageUp, Qt::ControlModifier, 3, false},
        {Qt::Key_R, Qt::AltModifier, 1, true},
    };

    for (const auto& [key, modifiers, section, goesIn] : presses) {
        auto* start = window()->findChild<QWidget*>(QStringLiteral("helpBtn"));
        start->setFocus();
        QTest::keyClick(start, key, modifiers);
        EXPECT_EQ(pages->currentIndex(), section) << key;
        EXPECT_EQ(pages->currentWidget()->isAncestorOf(window()->focusWidget()), goesIn) << key;
    }
}

TEST_F(SettingsTest, ANarrowWindowHasAButtonInsteadOfTheListAndAWideOneTwoColumns) {
    open();
    EXPECT_FALSE(window()->hasHeightForWidth()); // or it would scroll as a whole
    auto* bar = window()->findChild<QWidget*>(QStringLiteral("sectionsBar"));
    auto* button = window()->findChild<QWidget*>(QStringLiteral("sectionsBtn"));
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    auto* last = find("canScanMenuBarCheck");
    for (const int width : {400, 1200, 2000}) {
        window()->resize(width, 400);
        EXPECT_EQ(bar->isVisible(), width > 400);
        EXPECT_EQ(button->isVisible(), width == 400);
        EXPECT_EQ(last->mapTo(window(), QPoint()).x() > 1000, width == 2000) << "a second column";
        find("lineScanTimeSlider")->setFocus();
        last->setFocus();
        EXPECT_FALSE(last->visibleRegion().isEmpty()) << width;
    }
}

TEST_F(SettingsTest, ARowIsThreeStopsItsValueHasTheKeysAndItsArrowIsNotInTheWay) {
    openWithAgent();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window()));
    find("lineScanTimeDecBtn")->setFocus();
    const auto next = [&] {
        QTest::keyClick(window()->focusWidget(), Qt::Key_Tab);
        return window()->focusWidget()->objectName().toStdString();
    };
    EXPECT_EQ(next(), "lineScanTimeLabel");

    const struct {
        Qt::Key key;
        double seconds;
    } presses[] = {{Qt::Key_Up, 10.1}, {Qt::Key_PageUp, 12.5}, {Qt::Key_Down, 12.4}};

    for (const auto& [key, seconds] : presses) {
        QTest::keyClick(window()->focusWidget(), key);
        EXPECT_DOUBLE_EQ(prefs.lineScanTime, seconds);
        EXPECT_EQ(agentLog_.nextMask(), kChangeScanSpeed);
    }
    EXPECT_TRUE(find("lineScanTimePutBack")->isVisible());
    EXPECT_EQ(next(), "lineScanTimeIncBtn");
    EXPECT_EQ(next(), "pointerScanTimeDecBtn");
    find("lineScanTimeDecBtn")->setFocus();
    QTest::keyClick(window()->focusWidget(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(window()->focusWidget()->objectName(), "lineScanTimePutBack") << "it can be reached";

    auto* check = find("canScanMenuBarCheck");
    check->setFocus();
    QTest::keyClick(check, Qt::Key_Space);
    EXPECT_EQ(next(), "lineScanCanEndKybdModeCheck");
    EXPECT_EQ(QAccessible::queryAccessibleInterface(check)->rect().size(), check->size());
    const auto* bar = window()->findChild<QWidget*>(QStringLiteral("sectionsBar"));
    auto* tabs = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(bar));
    EXPECT_EQ(tabs->child(0)->role(), QAccessible::PageTab);
    EXPECT_TRUE(tabs->child(0)->state().selected && !tabs->child(0)->state().focused);
    EXPECT_THAT(remainingMasks(), testing::ElementsAre(0));
}

TEST_F(SettingsTest, TheHelpKnowsThePageAndTheRow) {
    open();
    const fs::path help = fs::path(KORVEX_BUNDLE) / "Contents/Resources/help";
    const NSWindow theWindow = pane_->mainView()->window();
    find("volumeDecBtn")->setFocus();
    EXPECT_EQ(theWindow.helpTopic(), "general.html#volume");
    window()->focusWidget()->clearFocus();
    find("lineColor");
    EXPECT_EQ(theWindow.helpTopic(), "look.html");
    int topics = 0;
    for (const auto* widget : window()->findChildren<QWidget*>()) {
        const QStringList topic = widget->property("help").toString().split('#');
        if (topic.front().isEmpty())
            continue;
        ++topics;
        const std::string page = readFile(help / topic.front().toStdString());
        EXPECT_NE(page, "") << topic.front().toStdString();
        if (topic.size() > 1) {
            EXPECT_THAT(page, testing::HasSubstr("id=\"" + topic[1].toStdString() + "\""));
        }
    }
    EXPECT_GT(topics, 60);
}

TEST_F(SettingsTest, ArrowsOnTheSwitchMoveWithoutChoosing) {
    openWithAgent();
    auto* on = find<QAbstractButton>("masterOnOffRadios1");
    on->setFocus();
    QTest::keyClick(on, Qt::Key_Left);
    EXPECT_EQ(window()->focusWidget()->objectName(), QLatin1String("masterOnOffRadios0"));
    EXPECT_TRUE(on->isChecked());
}

} // namespace
