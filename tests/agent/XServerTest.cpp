// SPDX-License-Identifier: MIT
#include "agent/x11/XServer.h"

#include "agent/x11/XReleaser.h"
#include "tests/support/ApplicationTest.h"
#include "tests/support/XvfbServer.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace {

using XServerTest = ApplicationTest<QCoreApplication>;

TEST_F(XServerTest, SaysThatThereIsNone) {
    std::string fault;
    EXPECT_FALSE(XServer::connect(fault));
    EXPECT_EQ(fault, "No X11 display can be reached.");
    EXPECT_FALSE(Guard::start(connectXReleaser));
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

    QEventLoop loop; // which really waits
    QTimer::singleShot(100, &loop, &QEventLoop::quit);
    loop.exec();
    ASSERT_EQ(moments.size(), 1U);
    EXPECT_NEAR(moments[0], before, 0.05);
}

} // namespace
