#include "platform/Accessibility/AXUIElement.h"

#include "tests/support/AccessibilityService.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTest>

#include <optional>

namespace {

class AXUIElementTest : public testing::Test {
protected:
    static void expectSoon(bool isOn) {
        EXPECT_TRUE(QTest::qWaitFor([=] { return AXAPIEnabled() == isOn; }, 10'000));
    }

private:
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QCoreApplication application_{argc_, argv_};
};

TEST_F(AXUIElementTest, FollowsTheServiceAsItComesChangesAndGoes) {
    EXPECT_FALSE(AXAPIEnabled());
    std::optional<AccessibilityService> service(std::in_place);
    service->set(true);
    expectSoon(true);
    service->set(false);
    expectSoon(false);
    service->set(true);
    expectSoon(true);
    service.reset();
    expectSoon(false);
}

TEST_F(AXUIElementTest, TheFirstCallKnowsTheAnswer) {
    AccessibilityService service;
    service.set(true);
    EXPECT_TRUE(AXAPIEnabled());
}

TEST_F(AXUIElementTest, AServiceThatHangsIsOffUntilItWakesUp) {
    AccessibilityService service;
    service.set(true);
    service.hang();
    QElapsedTimer clock;
    clock.start();
    EXPECT_FALSE(AXAPIEnabled());
    EXPECT_LT(clock.elapsed(), 1000) << "milliseconds";
    clock.restart();
    EXPECT_FALSE(AXAPIEnabled());
    EXPECT_LT(clock.elapsed(), 50) << "milliseconds: it doesn't ask again";
    service.wakeUp();
    expectSoon(true);
}

TEST(AXUIElementWithoutABusTest, CountsAsOff) {
    setenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nowhere", 1);
    int argc = 1;
    char name[] = "test";
    char* argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);
    EXPECT_FALSE(AXAPIEnabled());
}

} // namespace
