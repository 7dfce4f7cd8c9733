// SPDX-License-Identifier: MIT
#include "agent/x11/XDesktop.h"
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
    QProcess::execute("xrandr", arguments);
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
        const XReply<xcb_grab_pointer_reply_t> held(xcb_grab_pointer_reply(
            connection,
            xcb_grab_pointer(connection, 1, others_->root(), 0, XCB_GRAB_MODE_ASYNC,
                             XCB_GRAB_MODE_ASYNC, XCB_NONE, XCB_NONE, XCB_CURRENT_TIME),
            nullptr));
        EXPECT_EQ(held->status, XCB_GRAB_STATUS_SUCCESS);
        if (keyboardToo)
            xcb_grab_keyboard(connection, 1, others_->root(), XCB_CURRENT_TIME, XCB_GRAB_MODE_ASYNC,
                              XCB_GRAB_MODE_ASYNC);
        sync();
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
        const char* output = "screen";
        for (std::size_t i = 0; i < areas.size(); ++i, output = "none")
            xrandr({"--setmonitor", kMonitors[i],
                    QString("%1/100x%2/100+%3+%4")
                        .arg(areas[i].width)
                        .arg(areas[i].height)
                        .arg(areas[i].left)
                        .arg(areas[i].top),
                    output});
    }

    static void joinMonitors(std::size_t count) {
        for (std::size_t i = 0; i < count; ++i)
            xrandr({"--delmonitor", kMonitors[i].right(1)});
    }

    inline static const QString kMonitors[] = {"a", "*b", "c"};
    std::optional<XDesktop> desktop_;
};

TEST_F(DesktopTest, ScreensAreTheServersMonitorsTheMainOneFirst) {
    EXPECT_THAT(desktop_->screens(), ElementsAre(Field(&Screen::area, Area{0, 0, 800, 600})));
    int changes = 0;
    desktop_->onScreens([&] { ++changes; });
    setMonitors({{0, 0, 300, 600}, {300, 0, 500, 600}, {350, 50, 100, 100}});
    EXPECT_THAT(desktop_->screens(), ElementsAre(Field(&Screen::area, Area{300, 0, 500, 600}),
                                                 Field(&Screen::area, Area{0, 0, 300, 600})))
        << "one inside of another is left out";
    joinMonitors(3);
    EXPECT_EQ(changes, 0);
    // The output goes off; that the screen can't become smaller is an error to the program.
    xrandr({"--output", "screen", "--off"});
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
    XDesktop desktop(*server);
    int changes = 0;
    desktop.onScreens([&] { ++changes; });
    const auto screens = desktop.screens();
    ASSERT_EQ(screens.size(), 1U);
    EXPECT_EQ(screens[0].area, (Area{0, 0, 800, 600}));
    EXPECT_EQ(screens[0].scale, 1.5);
    EXPECT_EQ(changes, 0);
    xrandr({"--setmonitor", "a", "300/100x600/100+0+0", "screen"});
    xrandr({"--output", "screen", "--off"});
    EXPECT_TRUE(QTest::qWaitFor([&] { return changes > 0; }));
}

TEST_F(DesktopTest, PanelsAreWhatDocksReserveAtAScreensTop) {
    const std::vector<Area> sideBySide{{0, 0, 300, 600}, {300, 0, 500, 600}};
    const std::vector<Area> stacked{{0, 0, 800, 300}, {0, 300, 800, 300}};
    const auto top = [](std::uint32_t height, std::uint32_t to = 799) {
        return Numbers{0, 0, height, 0, 0, 0, 0, 0, 0, to, 0, 0};
    };

    const struct {
        const char* name;
        Numbers strut;
        std::vector<Area> monitors;
        std::vector<double> panels; ///< of the first monitor last: the second is the main one
        const char* type = "DOCK";
        const char* property = "_NET_WM_STRUT_PARTIAL";
    } cases[] = {
        {"whole", top(30), {}, {30}},
        {"older", {0, 0, 25, 0}, {}, {25}, "DOCK", "_NET_WM_STRUT"},
        {"no dock", top(30), {}, {0}, "NORMAL"},
        {"at the bottom", {0, 0, 0, 30, 0, 0, 0, 0, 0, 0, 0, 799}, {}, {0}},
        {"too short", {0, 0, 30}, {}, {0}},
        {"absurd", top(500), {}, {0}},
        {"left one", top(30, 299), sideBySide, {0, 30}},
        {"lower one", top(340), stacked, {40, 0}},
    };

    const xcb_window_t dock = otherWindow({0, 0, 800, 30}, 0, false);
    setNumbers(others_->root(), "_NET_CLIENT_LIST", {dock});
    for (const auto& each : cases) {
        SCOPED_TRACE(each.name);
        for (const char* property : {"_NET_WM_STRUT", "_NET_WM_STRUT_PARTIAL"})
            xcb_delete_property(others_->connection(), dock, others_->atom(property));
        setType(dock, each.type);
        setNumbers(dock, each.property, each.strut);
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
    otherWindow({100, 100, 15, 200});
    otherWindow({100, 100, 150, 200}, 0, false);       // an ordinary one
    otherWindow({100, 100, 150, 200}, 0, true, false); // not shown
    hold(false);
    EXPECT_THAT(desktop_->openMenus(), IsEmpty());
    setType(otherWindow({100, 100, 150, 200}), "COMBO");
    EXPECT_EQ(desktop_->openMenus().size(), 1U);
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
