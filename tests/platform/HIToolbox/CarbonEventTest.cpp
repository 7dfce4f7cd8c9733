// SPDX-License-Identifier: MIT
#include "platform/HIToolbox/CarbonEvents.h"
#include "platform/HIToolbox/detail/CarbonWindow.h"
#include "tests/support/ApplicationTest.h"

#include <QApplication>
#include <QTest>
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

/// Notes the modifiers of each event that it handles.
struct Witness final : QWidget {
    void mouseReleaseEvent(QMouseEvent*) override { noted = GetCurrentEventKeyModifiers(); }

    void keyPressEvent(QKeyEvent*) override { noted = GetCurrentEventKeyModifiers(); }

    UInt32 noted = ~0u;
};

using CarbonEventTest = ApplicationTest<QApplication>;

TEST_F(CarbonEventTest, AHandlerMayDisposeOfItsWindowAndModifiersAreThoseOfTheEvent) {
    std::string called;
    auto* window = new CarbonWindow(std::make_unique<QWidget>());
    Handler older{'1', &called}, disposing{'2', &called, window};
    for (Handler* handler : {&older, &disposing})
        InstallEventHandler(GetWindowEventTarget(window), call, 1, &kMouseUp, handler, nullptr);
    QTimer::singleShot(0, [&] { window->send({kEventClassMouse, kEventMouseUp}); });
    EXPECT_EQ(RunAppModalLoopForWindow(window), noErr) << "its end ends its loop";
    EXPECT_EQ(called, "2");

    Witness witness;
    const std::pair<Qt::KeyboardModifiers, UInt32> cases[] = {
        {Qt::AltModifier, optionKey},
        {Qt::GroupSwitchModifier, optionKey}, // AltGr
        {Qt::NoModifier, 0},                  // those of before aren't held any more
        {Qt::ShiftModifier | Qt::KeypadModifier, shiftKey},
        {Qt::ControlModifier, controlKey},
        {Qt::MetaModifier, cmdKey},
        {Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier | Qt::MetaModifier, 0x1B00}};
    for (const auto& [held, keys] : cases) {
        QTest::mouseClick(&witness, Qt::LeftButton, held);
        EXPECT_EQ(std::exchange(witness.noted, ~0u), keys);
        QTest::sendKeyEvent(QTest::Press, &witness, Qt::Key_X, u'x', held);
        EXPECT_EQ(witness.noted, keys);
    }
}

} // namespace
