// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QTimer>

namespace {

constexpr EventTypeSpec kMouseUp = {kEventClassMouse, kEventMouseUp};

struct Handler {
    char name;
    std::string* called;
    WindowRef disposed = nullptr;
};

OSStatus call(EventHandlerCallRef, EventRef, void* userData) {
    const auto* handler = static_cast<const Handler*>(userData);
    *handler->called += handler->name;
    if (handler->disposed)
        DisposeWindow(handler->disposed);
    return eventNotHandledErr;
}

using CarbonEventTest = ApplicationTest<QApplication>;

TEST_F(CarbonEventTest, AHandlerMayDisposeOfItsWindow) {
    std::string called;
    auto* window = new CarbonWindow(std::make_unique<QWidget>());
    Handler older{'1', &called}, disposing{'2', &called, window};
    for (Handler* handler : {&older, &disposing})
        InstallEventHandler(GetWindowEventTarget(window), call, 1, &kMouseUp, handler, nullptr);
    QTimer::singleShot(0, [&] { window->send({kEventClassMouse, kEventMouseUp}); });
    EXPECT_EQ(RunAppModalLoopForWindow(window), noErr) << "its end ends its loop";
    EXPECT_EQ(called, "2");
}

} // namespace
