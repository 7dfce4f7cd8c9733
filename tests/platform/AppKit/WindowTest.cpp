// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/EventTimers.h"
#include "platform/Support/EventMoment.h"
#include "tests/platform/AppKit/TestForm.h"

namespace {

using WindowTest = FormTest;

TEST_F(WindowTest, AnotherContentTakesTheWholeWindowUntilItGoes) {
    ControlOwner<NSButton> owner;
    ASSERT_NO_FATAL_FAILURE(show(widgetXml("QPushButton", "button", wired()), owner));
    QWidget* window = nib_.topLevelWidget();
    find("last")->setFocus();
    QWidget other;
    NSView view;
    view.attachWidget(&other);
    for (int time = 0; time < 2; ++time) { // again in its own place
        nib_.topLevelView()->window().setContentView(&view);
        window->resize(500, 400);
        EXPECT_EQ(other.size(), window->size());
        EXPECT_FALSE(find("first")->isVisible());
    }
    nib_.topLevelView()->window().setContentView(nullptr);
    EXPECT_FALSE(other.isVisible() || other.parent());
    EXPECT_TRUE(find("first")->isVisible());
    EXPECT_EQ(window->focusWidget(), find("last"));
}

TEST(EventMoment, IsTheServersAsFarAsItsClockIsOurs) {
    const double now = GetCurrentEventTime();
    const auto milliseconds = static_cast<std::uint64_t>(now * 1000);
    EXPECT_NEAR(momentOf(milliseconds - 40), now - 0.04, 0.002);
    // X11's 32 bits overflow again and again.
    EXPECT_NEAR(momentOf((milliseconds - 40) & 0xFFFFFFFFU), now - 0.04, 0.002);
    EXPECT_NEAR(momentOf(0x7FFFFFFF & (milliseconds / 2)), now, 0.1) << "another clock";
    EXPECT_NEAR(momentOf(milliseconds + 9000), now, 0.1) << "not yet";
}

} // namespace
