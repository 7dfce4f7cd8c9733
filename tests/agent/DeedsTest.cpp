// SPDX-License-Identifier: MIT
#include "agent/Deeds.h"
#include "agent/Accessibility.h"
#include "agent/Targets.h"

#include "agent/x11/Properties.h"
#include "agent/x11/XReleaser.h"
#include "agent/x11/XSession.h"
#include "tests/agent/TargetWindow.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/XvfbServer.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTest>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr int kLongestWait = 6'000; ///< ms

using Texts = std::vector<std::string>;

/// The number of the action of that kind, with these keys if it has any.
UInt8 actionOf(ActionKind kind, const std::string& keys = {}) {
    UInt8 action = 0;
    while (kActionRows[action].kind != kind ||
           (kind == ActionKind::Keys && kActionRows[action].keys != keys))
        ++action;
    return action;
}

/// What the scanner would have to do.
struct Told final : Deeds::Listener {
    void cantDo(const std::string& why) override { texts.push_back(why); }

    void scanNow() override { texts.emplace_back("scan"); }

    void pause() override { texts.emplace_back("pause"); }

    void change(const SettingSet&, const PrefsRecord& record) override {
        texts.push_back(QStringLiteral("line %1, pointer %2")
                            .arg(record.lineScanTime)
                            .arg(record.pointerScanTime)
                            .toStdString());
    }

    Texts texts;
};

/// Shows windows on the display.
struct Application {
    int argc = 1;
    char name[5] = "test";
    char* argv[2] = {name, nullptr};
    bool isSet = qputenv("QT_QPA_PLATFORM", "xcb");
    QGuiApplication application{argc, argv};
};

class DeedsTest : public testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(server_ && guard_) << fault_; }

    std::string carryOut(const Deed& deed) { return deeds_->carryOut(deed, settings_); }

    std::string choose(ActionKind kind, const std::string& keys = {}) {
        return carryOut({.kind = Deed::Kind::Action, .action = actionOf(kind, keys)});
    }

    std::string press(const std::string& keys) { return choose(ActionKind::Keys, keys); }

    XvfbServer xvfb_;
    TargetWindow target_{0, 0, 400, 300};
    FakeDevice keyboard_{FakeDevice::Kind::Keyboard};
    std::string fault_;
    std::unique_ptr<Guard> guard_ = Guard::start(connectXReleaser);
    Application application_;
    std::unique_ptr<XServer> server_ = XServer::connect(fault_);
    std::unique_ptr<Session> session_ = XSession::connect(*guard_, fault_);
    Told told_;
    std::unique_ptr<Deeds> deeds_ = std::make_unique<Deeds>(*session_, told_);
    PrefsRecord settings_ = [] {
        PrefsRecord record;
        record.clickDuration = 10;
        return record;
    }();
};

TEST_F(DeedsTest, AtAPlace) {
    using Kind = Deed::Kind;

    const struct {
        const char* name;
        std::vector<Deed> deeds;
        Texts events;
    } kCases[] = {
        {"with modifiers",
         {{.kind = Kind::Click, .place = {5, 6}, .shift = true, .control = true}},
         {"key 50 down", "key 37 down", "press 1 at 5,6", "release 1 at 5,6", "key 50 up",
          "key 37 up"}},
        {"scroll in the upper half",
         {{.kind = Kind::Scroll, .place = {50, 149}}},
         {"press 4 at 50,149", "release 4 at 50,149", "press 4 at 50,149", "release 4 at 50,149",
          "press 4 at 50,149", "release 4 at 50,149"}},
        {"scroll in the lower half",
         {{.kind = Kind::Scroll, .place = {50, 151}}},
         {"press 5 at 50,151", "release 5 at 50,151", "press 5 at 50,151", "release 5 at 50,151",
          "press 5 at 50,151", "release 5 at 50,151"}},
        {"drag",
         {{.kind = Kind::ButtonDown, .place = {0, 0}},
          {.kind = Kind::Move, .place = {120, 60}},
          {.kind = Kind::ButtonUp, .place = {120, 60}}},
         {"press 1 at 0,0", "move to 10,5", "move to 20,10", "move to 30,15", "move to 40,20",
          "move to 50,25", "move to 60,30", "move to 70,35", "move to 80,40", "move to 90,45",
          "move to 100,50", "move to 110,55", "move to 120,60", "move to 120,60",
          "release 1 at 120,60"}},
        {"a drag that is given up",
         {{.kind = Kind::ButtonDown, .place = {10, 10}}, {.kind = Kind::GiveUp, .place = {10, 10}}},
         {"press 1 at 10,10", "key 9 down", "key 9 up", "move to 10,10", "release 1 at 10,10"}},
    };

    for (const auto& [name, all, expected] : kCases) {
        SCOPED_TRACE(name);
        for (const Deed& deed : all)
            EXPECT_EQ(carryOut(deed), "");
        EXPECT_THAT(target_.events(expected.size()), ElementsAreArray(expected));
        EXPECT_TRUE(QTest::qWaitFor([&] { return target_.down().empty(); }));
    }
}

TEST_F(DeedsTest, KeysAreWhereTheActiveLayoutHasThem) {
    const struct {
        const char* layout;
        const char* keys;
        Texts events;
    } kCases[] = {
        {"us", "Control+z", {"key 37 down", "key 52 down", "key 52 up", "key 37 up"}},
        {"de", "Control+z", {"key 37 down", "key 29 down", "key 29 up", "key 37 up"}},
        {"fr", "Control+z", {"key 37 down", "key 25 down", "key 25 up", "key 37 up"}},
        {"fr", "Control+c", {"key 37 down", "key 54 down", "key 54 up", "key 37 up"}},
        {"gr,us", "Control+c", {"key 37 down", "key 54 down", "key 54 up", "key 37 up"}},
        {"gr,de", "Control+z", {"key 37 down", "key 29 down", "key 29 up", "key 37 up"}},
        {"gr", "Return", {"key 36 down", "key 36 up"}},
        {"gr", "Alt+Left", {"key 64 down", "key 113 down", "key 113 up", "key 64 up"}},
    };

    for (const auto& [layout, keys, expected] : kCases) {
        SCOPED_TRACE(std::string(layout) + " " + keys);
        QProcess::execute("setxkbmap", {layout});
        EXPECT_EQ(press(keys), "");
        EXPECT_THAT(target_.events(expected.size()), ElementsAreArray(expected));
    }
}

TEST_F(DeedsTest, WaitsForTheUsersModifiers) {
    constexpr int kSuper = 133;
    keyboard_.key(kSuper, true);
    EXPECT_EQ(carryOut({.kind = Deed::Kind::Click, .place = {5, 6}}), "");
    EXPECT_EQ(press("Return"), "");
    QTest::qWait(100);
    EXPECT_THAT(target_.events(), ElementsAre("key 133 down"));
    keyboard_.key(kSuper, false);
    EXPECT_THAT(target_.events(5), ElementsAre("key 133 up", "press 1 at 5,6", "release 1 at 5,6",
                                               "key 36 down", "key 36 up"));
}

TEST_F(DeedsTest, AScanThatCantBeFasterSaysSo) {
    settings_.lineScanTime = 1.2, settings_.pointerScanTime = 1;
    EXPECT_EQ(choose(ActionKind::Faster), "");
    EXPECT_EQ(told_.texts, Texts{"line 1, pointer 1"});
    settings_.lineScanTime = 1;
    EXPECT_EQ(choose(ActionKind::Faster), "The scan is as fast as it can be.");
}

TEST_F(DeedsTest, TheVolumeIsTheSoundServersWithinItsLimits) {
    const auto sink = [](const char* command) {
        QProcess program;
        program.start("pactl", {command, "@DEFAULT_SINK@"});
        program.waitForFinished();
        return program.readAllStandardOutput().toStdString();
    };
    EXPECT_EQ(choose(ActionKind::Louder), "");
    EXPECT_TRUE(QTest::qWaitFor([&] { return !told_.texts.empty(); }));
    EXPECT_EQ(std::exchange(told_.texts, {}), Texts{"No sound server answers."});

    QProcess server;
    server.start("pulseaudio", {"-n", "--daemonize=no", "--exit-idle-time=-1", "-L",
                                "module-native-protocol-unix", "-L", "module-null-sink"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return !sink("get-sink-volume").empty(); }, kLongestWait));

    const struct {
        const char* volume;
        ActionKind kind;
        const char* command;
        std::string expected;
    } kCases[] = {
        {"50%", ActionKind::Louder, "get-sink-volume", " 55% "},
        {"50%", ActionKind::Quieter, "get-sink-volume", " 45% "},
        {"98%", ActionKind::Louder, "get-sink-volume", " 100% "},
        {"3%", ActionKind::Quieter, "get-sink-volume", " 0% "},
        {"50%", ActionKind::Mute, "get-sink-mute", "yes"},
        {"50%", ActionKind::Mute, "get-sink-mute", "no"},
    };

    for (const auto& [volume, kind, command, expected] : kCases) {
        SCOPED_TRACE(expected);
        QTest::qWait(300); // one is done at a time
        QProcess::execute("pactl", {"set-sink-volume", "@DEFAULT_SINK@", volume});
        EXPECT_EQ(choose(kind), "");
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return sink(command).find(expected) != std::string::npos; }, kLongestWait));
    }
    EXPECT_THAT(told_.texts, IsEmpty());
}

TEST_F(DeedsTest, LettingGoDropsWhatIsUnderWay) {
    carryOut({.kind = Deed::Kind::ButtonDown, .place = {10, 10}});
    carryOut({.kind = Deed::Kind::Move, .place = {200, 100}});
    EXPECT_TRUE(QTest::qWaitFor([&] { return target_.down() == Texts{"button 1"}; }));
    deeds_->letGo();
    EXPECT_TRUE(QTest::qWaitFor([&] { return target_.down().empty(); }));
    target_.events();
    QTest::qWait(300);
    EXPECT_THAT(target_.events(), IsEmpty());
}

/// Openbox, with the menu that Debian gives it, and programs that say what happens to them.
class DesktopDeedsTest : public DeedsTest {
protected:
    DesktopDeedsTest() {
        QProcess::execute("dbus-update-activation-environment", {"DISPLAY"});
        start(manager_, "env", {"XDG_CONFIG_DIRS=/etc/xdg", "openbox"});
        EXPECT_TRUE(waitForRoot("_NET_SUPPORTED"));
    }

    static void start(QProcess& program, const QString& name, const QStringList& arguments) {
        program.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        program.start(name, arguments);
        ASSERT_TRUE(program.waitForStarted());
    }

    void startEditor(const QString& name, const QStringList& arguments) {
        xcb_unmap_window(target_.connection(), target_.window());
        target_.events();
        start(editor_, name, arguments);
        EXPECT_TRUE(says("ready"));
        EXPECT_TRUE(waitForRoot("_NET_ACTIVE_WINDOW"));
    }

    void endEditor() {
        editor_.kill();
        editor_.waitForFinished();
        said_.clear();
    }

    /// Whether the editor says that or more, now or soon. All before is forgotten.
    bool says(const std::string& text) {
        const bool found = QTest::qWaitFor(
            [&] {
                said_ += editor_.readAllStandardOutput().toStdString();
                return said_.find(text) != std::string::npos;
            },
            kLongestWait);
        EXPECT_TRUE(found) << text << " isn't in\n" << said_;
        said_.clear();
        return found;
    }

    /// Until the window manager says so: a number that isn't zero, or a list.
    bool waitForRoot(const char* property) {
        const auto isSet = [&] {
            const auto all = numbersOf(*server_, askProperty(*server_, server_->root(), property));
            return !all.empty() && all[0] != 0;
        };
        return QTest::qWaitFor(isSet, 20'000);
    }

    bool waitToBeTold(const Texts& texts) {
        const bool isTold = QTest::qWaitFor([&] { return told_.texts == texts; }, 20'000);
        EXPECT_EQ(told_.texts, texts);
        told_.texts.clear();
        return isTold;
    }

    Surroundings around() {
        Surroundings around;
        deeds_->addTo(around);
        return around;
    }

    /// A click on a row of the list that is open, from the top.
    void chooseRow(int row) {
        ASSERT_EQ(around().menus.size(), 1U);
        const Area list = around().menus[0];
        carryOut({.kind = Deed::Kind::Click,
                  .place = {list.middle().x, list.top + (row + 0.5) * ListWindow::kRowHeight}});
    }

    QProcess manager_, editor_;
    std::string said_;
};

TEST_F(DesktopDeedsTest, TypesWithOnboard) {
    startEditor(KORVEX_GTK_EDITOR, {});
    EXPECT_EQ(choose(ActionKind::Type), "");
    ASSERT_TRUE(waitToBeTold({"scan"}));
    const auto place = around().keyboard;
    ASSERT_TRUE(place);
    EXPECT_GT(place->width, 100);
    settings_.lineScanCanEndKybdMode = 0;
    deeds_->scanRanOut(settings_);
    EXPECT_TRUE(around().keyboard);
    // A click on one of its keys types into the window that has the focus.
    EXPECT_EQ(carryOut({.kind = Deed::Kind::Click, .place = place->middle()}), "");
    EXPECT_TRUE(says("text "));
    settings_.lineScanCanEndKybdMode = 1;
    deeds_->scanRanOut(settings_);
    EXPECT_FALSE(around().keyboard);
}

TEST_F(DesktopDeedsTest, WindowsAreBroughtForwardClosedAndHidden) {
    EXPECT_EQ(choose(ActionKind::Close), "No window is active.");
    startEditor(KORVEX_GTK_EDITOR, {});
    QProcess other;
    start(other, KORVEX_GTK_EDITOR, {"without a menu bar"});
    ASSERT_TRUE(QTest::qWaitFor([&] { return other.readAllStandardOutput().contains("ready"); }));
    EXPECT_EQ(choose(ActionKind::Windows), "");
    ASSERT_TRUE(waitToBeTold({"scan"}));
    said_.clear();
    chooseRow(1);
    EXPECT_TRUE(says("ready"));
    EXPECT_TRUE(around().menus.empty());
    EXPECT_TRUE(waitForRoot("_NET_ACTIVE_WINDOW"));
    EXPECT_EQ(choose(ActionKind::Desktop), "");
    EXPECT_TRUE(waitForRoot("_NET_SHOWING_DESKTOP"));
    EXPECT_EQ(choose(ActionKind::Desktop), "");
    EXPECT_TRUE(says("ready"));
    EXPECT_TRUE(waitForRoot("_NET_ACTIVE_WINDOW"));
    EXPECT_EQ(choose(ActionKind::Close), "");
    EXPECT_TRUE(says("closed"));
    manager_.kill();
    manager_.waitForFinished();
    EXPECT_EQ(choose(ActionKind::Desktop), "The window manager can't show the desktop.");
}

TEST_F(DesktopDeedsTest, MenusOpenAndAreScanned) {
    for (const char* program : {KORVEX_GTK_EDITOR, KORVEX_QT_EDITOR}) {
        startEditor(program, {});
        EXPECT_EQ(choose(ActionKind::Menus), "");
        ASSERT_TRUE(waitToBeTold({"scan"})); // the list of its menus
        chooseRow(1);
        EXPECT_TRUE(says("menu Edit"));
        ASSERT_TRUE(waitToBeTold({"scan"}));
        EXPECT_EQ(session_->desktop().openMenus().size(), 1U);
        EXPECT_EQ(press("Escape"), "");
        endEditor();
    }
}

/// What the programs tell, where it is shown, unless another window covers it.
TEST_F(DesktopDeedsTest, FindsWhatCanBePressed) {
    accessibility::wakePrograms();
    for (const char* program : {KORVEX_GTK_EDITOR, KORVEX_QT_EDITOR}) {
        startEditor(program, {});
        Targets targets;
        const auto look = [&](const std::vector<Windows::Shown>& shown, std::size_t least) {
            return QTest::qWaitFor([&] { // some programs make their trees when asked
                targets.lookFor(shown, shown.back().area);
                return QTest::qWaitFor([&] { return targets.found().size() >= least; }, 500);
            });
        };
        const auto shown = session_->windows().shown();
        ASSERT_EQ(shown.size(), 1U);
        EXPECT_TRUE(look(shown, 3)) << program; // two menus and a text
        const Area window = shown[0].area;
        for (const Target& target : targets.found()) {
            EXPECT_EQ(intersection(target.box, window), target.box) << program;
            EXPECT_EQ(target.isPressed, target.box.top < window.top + 5) << program;
        }
        const Windows::Shown cover = {0, {window.left, window.top, window.width, 40}};
        EXPECT_TRUE(look({cover, shown[0]}, 1));
        EXPECT_EQ(targets.found().size(), 1U) << program;
        endEditor();
    }
}

TEST_F(DesktopDeedsTest, TextIsCutPastedAndDraggedInEveryLayout) {
    constexpr int kApart = 600; // ms; sooner, a click would belong to the ones before
    using Kind = Deed::Kind;
    for (const auto& [program, name] : {std::pair(KORVEX_GTK_EDITOR, "Gtk_editor.py"),
                                        std::pair(KORVEX_QT_EDITOR, "agent_qt_editor")}) {
        SCOPED_TRACE(name);
        startEditor(program, {"without a menu bar"});
        const auto area = session_->windows().placeOf(name);
        ASSERT_TRUE(area);
        const Place word{area->left + 15, area->top + 12};
        const Deed selectIt{.kind = Kind::Click, .place = word, .click = ActionKind::DoubleClick};
        for (const char* layout : {"us", "de", "fr", "gr,us", "gr"}) {
            SCOPED_TRACE(layout);
            QProcess::execute("setxkbmap", {layout});
            QTest::qWait(kApart);
            carryOut(selectIt);
            EXPECT_EQ(press("Control+x"), "");
            EXPECT_TRUE(says("text  two|three|"));
            EXPECT_EQ(press("Control+v"), "");
            EXPECT_TRUE(says("text one two|three|"));
        }
        QTest::qWait(kApart);
        carryOut(selectIt);
        QTest::qWait(kApart);
        const Place below{area->left + 200, area->top + 100};
        carryOut({.kind = Kind::ButtonDown, .place = word});
        carryOut({.kind = Kind::Move, .place = below});
        carryOut({.kind = Kind::ButtonUp, .place = below});
        EXPECT_TRUE(says("text  two|three|one"));
        endEditor();
    }
}

TEST_F(DesktopDeedsTest, ApplicationsAreTheDesktopsMenu) {
    startEditor(KORVEX_GTK_EDITOR, {});
    EXPECT_EQ(choose(ActionKind::Apps), "");
    EXPECT_TRUE(waitToBeTold({"scan"}));
}

} // namespace
