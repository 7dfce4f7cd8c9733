// SPDX-License-Identifier: MIT
#include "platform/Accessibility/AXUIElement.h"

#include "tests/support/AccessibilityService.h"
#include "tests/support/ApplicationTest.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <optional>

namespace {

using AXUIElementTest = ApplicationTest<QCoreApplication>;

void expectSoon(bool isOn) {
    EXPECT_TRUE(QTest::qWaitFor([=] { return AXAPIEnabled() == isOn; }, 10'000)) << isOn;
}

TEST_F(AXUIElementTest, FollowsTheServiceAsItChangesGoesAndComes) {
    std::optional<AccessibilityService> service(std::in_place);
    service->set(true);
    EXPECT_TRUE(AXAPIEnabled()) << "the first call knows";
    service->set(false);
    expectSoon(false);
    service->set(true);
    expectSoon(true);
    service.reset();
    expectSoon(false);
    service.emplace().set(true);
    expectSoon(true);
}

TEST_F(AXUIElementTest, AServiceThatHangsIsOffUntilItWakesUp) {
    AccessibilityService service;
    service.set(true);
    QTest::qWait(500); // it has heard that
    service.hang();
    for (const int limit : {1000, 50}) { // milliseconds; it doesn't ask again
        QElapsedTimer clock;
        clock.start();
        EXPECT_FALSE(AXAPIEnabled());
        EXPECT_LT(clock.elapsed(), limit);
    }
    service.wakeUp();
    expectSoon(true);
}

TEST_F(AXUIElementTest, WithoutABusCountsAsOff) {
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    EXPECT_FALSE(AXAPIEnabled());
}

} // namespace
