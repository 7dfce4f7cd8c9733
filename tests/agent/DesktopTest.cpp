// SPDX-License-Identifier: MIT
#include "agent/x11/Desktop.h"
#include "tests/agent/DisplayTest.h"

#include <QGuiApplication>
#include <QProcess>
#include <QTest>

namespace {

using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

using Numbers = std::vector<std::uint32_t>;

void xrandr(const QStringList& arguments) {
    QProcess::execute(QStringLiteral("xrandr"), arguments);
}

class DesktopTest : public DisplayTest {
protected:
    void SetUp() override {
        DisplayTest::SetUp();
        desktop_.emplace(*server_);
    }

    /// The other program holds the pointer, and the keyboard if it is to.
    void hold(bool keyboardToo) {
        xcb_connection_t* connection = others_->connection();
        const auto pointer =
            xcb_grab_pointer(connection, 1, others_->root(), 0, XCB_GRAB_MODE_ASYNC,
                             XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME);
        const XReply<xcb_grab_pointer_reply_t> held(
            xcb_grab_pointer_reply(connection, pointer, nullptr));
        ASSERT_TRUE(held && held->status == XCB_GRAB_STATUS_SUCCESS);
        if (!keyboardToo)
            return;
        const auto keyboard = xcb_grab_keyboard(connection, 1, others_->root(), XCB_CURRENT_TIME,
                                                XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        const XReply<xcb_grab_keyboard_reply_t> heldToo(
            xcb_grab_keyboard_reply(connection, keyboard, nullptr));
        ASSERT_TRUE(heldToo && heldToo->status == XCB_GRAB_STATUS_SUCCESS);
    }

    void letGo() {
        xcb_ungrab_pointer(others_->connection(), XCB_CURRENT_TIME);
        xcb_ungrab_keyboard(others_->connection(), XCB_CURRENT_TIME);
        sync();
    }

    void setType(xcb_window_t window, const std::string& type) {
        setNumbers(window, "_NET_WM_WINDOW_TYPE",
                   {others_->atom(("_NET_WM_WINDOW_TYPE_" + type).c_str())});
    }

    /// Divides the display into monitors; the second is the main one.
    static void setMonitors(const std::vector<Area>& areas) {
        static constexpr const char* kNames[] = {"a", "*b", "c"};
        for (std::size_t i = 0; i < areas.size(); ++i)
            xrandr({QStringLiteral("--setmonitor"), QLatin1String(kNames[i]),
                    QStringLiteral("%1/100x%2/100+%3+%4")
                        .arg(areas[i].width)
                        .arg(areas[i].height)
                        .arg(areas[i].left)
                        .arg(areas[i].top),
                    i == 0 ? QStringLiteral("screen") : QStringLiteral("none")});
    }

    static void joinMonitors(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            xrandr({QStringLiteral("--delmonitor"), QString(QChar('a' + static_cast<char>(i)))});
    }

    std::optional<Desktop> desktop_;
};

TEST_F(DesktopTest, ScreensAreTheServersMonitorsTheMainOneFirst) {
    EXPECT_THAT(desktop_->screens(), ElementsAre(Field(&Screen::area, Area{0, 0, 800, 600})));
    int changes = 0;
    desktop_->onScreens([&] { ++changes; });
    setMonitors({{0, 0, 300, 600}, {300, 0, 500, 600}, {350, 50, 100, 100}});
    EXPECT_THAT(desktop_->screens(), ElementsAre(Field(&Screen::area, Area{300, 0, 500, 600}),
                                                 Field(&Screen::area, Area{0, 0, 300, 600})))
        << "one inside of another is left out";
    EXPECT_EQ(desktop_->inPixels(10, 20, 30, 40), (Area{310, 20, 30, 40}))
        << "points count from the main display";
    joinMonitors(3);
    EXPECT_EQ(changes, 0);
    // The output goes off; that the screen can't become smaller is an error to the program.
    xrandr({QStringLiteral("--output"), QStringLiteral("screen"), QStringLiteral("--off")});
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
    EXPECT_THAT(desktop_->screens(), ElementsAre(Field(&Screen::area, Area{0, 0, 800, 600})))
        << "there is always one";
}

TEST(Desktop, WithWindowsOfQtTheScreensHaveItsScale) {
    const XvfbServer display(800, 600);
    qputenv("QT_QPA_PLATFORM", "xcb");
    qputenv("QT_SCALE_FACTOR", "1.5");
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    const QGuiApplication application(argc, argv);
    std::string fault;
    const auto server = XServer::connect(fault);
    ASSERT_TRUE(server) << fault;
    Desktop desktop(*server);
    int changes = 0;
    desktop.onScreens([&] { ++changes; });
    const auto screens = desktop.screens();
    ASSERT_EQ(screens.size(), 1U);
    EXPECT_EQ(screens[0].area, (Area{0, 0, 800, 600}));
    EXPECT_EQ(screens[0].scale, 1.5);
    EXPECT_EQ(desktop.inPixels(10, 20, 30, 40), (Area{15, 30, 45, 60}));
    EXPECT_EQ(changes, 0);
    xrandr({QStringLiteral("--setmonitor"), QStringLiteral("a"),
            QStringLiteral("300/100x600/100+0+0"), QStringLiteral("screen")});
    xrandr({QStringLiteral("--output"), QStringLiteral("screen"), QStringLiteral("--off")});
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
}

TEST_F(DesktopTest, PanelsAreWhatDocksReserveAtAScreensTop) {
    struct Case {
        const char* name;
        const char* type;
        const char* strut;
        Numbers numbers;
        std::vector<Area> monitors;
        std::vector<double> panels; ///< of the first monitor last: the second is the main one
    };

    const std::vector<Area> sideBySide{{0, 0, 300, 600}, {300, 0, 500, 600}};
    const std::vector<Area> stacked{{0, 0, 800, 300}, {0, 300, 800, 300}};
    const Case cases[] = {
        {"whole",
         "DOCK",
         "_NET_WM_STRUT_PARTIAL",
         {0, 0, 30, 0, 0, 0, 0, 0, 0, 799, 0, 0},
         {},
         {30}},
        {"older", "DOCK", "_NET_WM_STRUT", {0, 0, 25, 0}, {}, {25}},
        {"no dock",
         "NORMAL",
         "_NET_WM_STRUT_PARTIAL",
         {0, 0, 30, 0, 0, 0, 0, 0, 0, 799, 0, 0},
         {},
         {0}},
        {"at the bottom",
         "DOCK",
         "_NET_WM_STRUT_PARTIAL",
         {0, 0, 0, 30, 0, 0, 0, 0, 0, 0, 0, 799},
         {},
         {0}},
        {"too short", "DOCK", "_NET_WM_STRUT_PARTIAL", {0, 0, 30}, {}, {0}},
        {"absurd",
         "DOCK",
         "_NET_WM_STRUT_PARTIAL",
         {0, 0, 500, 0, 0, 0, 0, 0, 0, 799, 0, 0},
         {},
         {0}},
        {"left one",
         "DOCK",
         "_NET_WM_STRUT_PARTIAL",
         {0, 0, 30, 0, 0, 0, 0, 0, 0, 299, 0, 0},
         sideBySide,
         {0, 30}},
        {"lower one",
         "DOCK",
         "_NET_WM_STRUT_PARTIAL",
         {0, 0, 340, 0, 0, 0, 0, 0, 0, 799, 0, 0},
         stacked,
         {40, 0}},
    };
    const xcb_window_t dock = otherWindow({0, 0, 800, 30}, 0, false);
    setNumbers(others_->root(), "_NET_CLIENT_LIST", {dock});
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        for (const char* strut : {"_NET_WM_STRUT", "_NET_WM_STRUT_PARTIAL"})
            xcb_delete_property(others_->connection(), dock, others_->atom(strut));
        setType(dock, each.type);
        setNumbers(dock, each.strut, each.numbers);
        setMonitors(each.monitors);
        std::vector<double> panels;
        for (const Screen& screen : desktop_->screens())
            panels.push_back(screen.panel);
        EXPECT_EQ(panels, each.panels);
        joinMonitors(each.monitors.size());
    }
}

TEST_F(DesktopTest, WithoutADockTheWorkAreaSaysWhereAPanelEnds) {
    setNumbers(others_->root(), "_NET_CURRENT_DESKTOP", {1});
    setNumbers(others_->root(), "_NET_WORKAREA", {0, 0, 800, 600, 0, 27, 800, 573});
    EXPECT_EQ(desktop_->screens()[0].panel, 27);
    setNumbers(others_->root(), "_NET_CURRENT_DESKTOP", {7});
    EXPECT_EQ(desktop_->screens()[0].panel, 0);
}

TEST_F(DesktopTest, AMenuIsAWindowOverOthersWhileSomebodyHoldsThePointer) {
    const QRect place(100, 100, 150, 200), later(220, 150, 90, 100);
    const xcb_window_t menu = otherWindow(place);
    otherWindow(later);
    EXPECT_THAT(desktop_->openMenus(), IsEmpty()) << "nobody holds the pointer";
    hold(false);
    const Area outer{100, 100, 150, 200}, inner{220, 150, 90, 100};
    EXPECT_THAT(desktop_->openMenus(), ElementsAre(inner, outer)) << "the topmost first";
    EXPECT_FALSE(desktop_->lockWindowIsUp());
    setNumbers(menu, "_GTK_FRAME_EXTENTS", {10, 11, 12, 13});
    EXPECT_THAT(desktop_->openMenus(), ElementsAre(inner, Area{110, 112, 129, 175}));
    letGo();
    EXPECT_THAT(desktop_->openMenus(), IsEmpty());
    hold(true); // the questions have left no grab behind
}

TEST_F(DesktopTest, OtherWindowsAreNoMenus) {
    for (const char* type : {"TOOLTIP", "NOTIFICATION", "DND", "DOCK", "DESKTOP", "SPLASH"})
        setType(otherWindow({100, 100, 150, 200}), type);
    const xcb_window_t ours = otherWindow({100, 100, 150, 200});
    constexpr char kClass[] = "korvex-agent\0korvex-agent";
    xcb_change_property(others_->connection(), XCB_PROP_MODE_REPLACE, ours, XCB_ATOM_WM_CLASS,
                        XCB_ATOM_STRING, 8, sizeof kClass, kClass);
    otherWindow({0, 0, kWidth, kHeight});
    otherWindow({100, 100, 23, 200});
    otherWindow({100, 100, 150, 200}, 0, false);       // an ordinary one
    otherWindow({100, 100, 150, 200}, 0, true, false); // not shown
    hold(false);
    EXPECT_THAT(desktop_->openMenus(), IsEmpty());
    setType(otherWindow({100, 100, 150, 200}), "COMBO");
    EXPECT_EQ(desktop_->openMenus().size(), 1U);
}

TEST_F(DesktopTest, MenusOfGtkAndQtProgramsAreFound) {
    const QString programs[] = {QStringLiteral(KORVEX_GTK_MENUS), QStringLiteral(KORVEX_QT_MENUS)};
    qputenv("QT_QPA_PLATFORM", "xcb");
    for (const QString& program : programs)
        for (const auto& [kind, count] : {std::pair("menu", 1), {"submenu", 2}, {"list", 1}}) {
            SCOPED_TRACE(program.toStdString() + ' ' + kind);
            QProcess process;
            process.start(program, {QLatin1String(kind)});
            ASSERT_TRUE(process.waitForStarted());
            const auto found = static_cast<std::size_t>(count);
            EXPECT_TRUE(
                QTest::qWaitFor([&] { return desktop_->openMenus().size() == found; }, 20'000));
            const auto menus = desktop_->openMenus();
            EXPECT_TRUE(menus.size() < 2 || menus[0].left > menus[1].left) << "the inner one first";
            process.closeWriteChannel();
            ASSERT_TRUE(process.waitForFinished());
        }
}

TEST_F(DesktopTest, ALockScreenHoldsKeyboardAndPointerAndCoversAScreen) {
    const xcb_window_t cover = otherWindow({0, 0, kWidth, kHeight});
    hold(false);
    EXPECT_FALSE(desktop_->lockWindowIsUp()) << "a game that holds the pointer";
    hold(true);
    EXPECT_TRUE(desktop_->lockWindowIsUp());
    xcb_unmap_window(others_->connection(), cover);
    sync();
    EXPECT_FALSE(desktop_->lockWindowIsUp()) << "a menu";
    otherWindow({0, 0, kWidth, kHeight}, 0, false);
    EXPECT_FALSE(desktop_->lockWindowIsUp()) << "a menu of a full-screen program";
}

} // namespace
