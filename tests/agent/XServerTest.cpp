// SPDX-License-Identifier: MIT
#include "agent/x11/XServer.h"

#include "agent/x11/Guard.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTest>
#include <QTimer>

#include <ctime>

namespace {

using XServerTest = ApplicationTest<QCoreApplication>;

TEST_F(XServerTest, SaysThatThereIsNone) {
    std::string fault;
    EXPECT_FALSE(XServer::connect(fault));
    EXPECT_EQ(fault, "No X11 display can be reached.");
    EXPECT_FALSE(Guard::start());
}

TEST_F(XServerTest, EventsComeAlsoWhenAReplyTookThemAlong) {
    const XvfbServer xvfb;
    std::string fault;
    const auto server = XServer::connect(fault);
    ASSERT_TRUE(server) << fault;
    std::vector<double> moments;
    server->onEvent([&](const xcb_generic_event_t& event) {
        if ((event.response_type & 0x7F) == XCB_PROPERTY_NOTIFY)
            moments.push_back(
                server->momentOf(reinterpret_cast<const xcb_property_notify_event_t&>(event).time));
    });
    const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(server->connection(), server->root(), XCB_CW_EVENT_MASK, &events);
    const double before = XServer::now();
    xcb_change_property(server->connection(), XCB_PROP_MODE_REPLACE, server->root(),
                        server->atom("_TEST"), XCB_ATOM_INTEGER, 32, 0, nullptr);
    EXPECT_EQ(server->atom("_TEST"), server->atom("_TEST"));
    EXPECT_NE(server->atom("_OTHER"), XCB_ATOM_NONE); // waits for its reply

    QEventLoop loop;
    QTimer::singleShot(100, &loop, &QEventLoop::quit);
    loop.exec();
    ASSERT_EQ(moments.size(), 1U);
    EXPECT_NEAR(moments[0], before, 0.05);
}

TEST_F(XServerTest, AServerThatDiesIsToldOnceAndCostsNothing) {
    XvfbServer xvfb;
    std::string fault;
    const auto server = XServer::connect(fault);
    ASSERT_TRUE(server) << fault;
    int ends = 0;
    server->onEnd([&ends] { ++ends; });
    xvfb.kill();
    EXPECT_TRUE(QTest::qWaitFor([&ends] { return ends > 0; }));
    EXPECT_EQ(server->atom("_TEST"), XCB_ATOM_NONE);
    const std::clock_t before = std::clock();
    QEventLoop loop;
    QTimer::singleShot(300, &loop, &QEventLoop::quit);
    loop.exec();
    EXPECT_LT(double(std::clock() - before) / CLOCKS_PER_SEC, 0.1);
    EXPECT_EQ(ends, 1);
}

} // namespace
