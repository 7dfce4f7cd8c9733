#include "platform/HIToolbox/CarbonWindow.h"

#include <QApplication>
#include <QTimer>
#include <gmock/gmock.h>

namespace {

constexpr EventTypeSpec kShown = {kEventClassWindow, kEventWindowShown};
constexpr EventTypeSpec kMouseUp = {kEventClassMouse, kEventMouseUp};

struct Handler {
    char name;
    OSStatus result;
    std::string* called;
};

OSStatus call(EventHandlerCallRef, EventRef, void* userData) {
    const auto* handler = static_cast<const Handler*>(userData);
    *handler->called += handler->name;
    return handler->result;
}

TEST(CarbonEventTest, TheNewestHandlerComesFirstUntilOneHasHandledIt) {
    std::string called;
    Handler oldest{'1', noErr, &called}, handling{'2', noErr, &called},
        passing{'3', eventNotHandledErr, &called}, other{'4', noErr, &called};
    CarbonEventTarget target;
    for (Handler* handler : {&oldest, &handling, &passing})
        InstallEventHandler(&target, call, 1, &kShown, handler, nullptr);
    InstallEventHandler(&target, call, 1, &kMouseUp, &other, nullptr);
    CarbonEvent shown(kShown.eventClass, kShown.eventKind);
    EXPECT_EQ(target.send(shown), noErr);
    EXPECT_EQ(called, "32");
    CarbonEvent unknown(kEventClassWindow, 99);
    EXPECT_EQ(target.send(unknown), eventNotHandledErr);
}

TEST(CarbonEventTest, AHandlerNeedsATargetAndATypeOfEvents) {
    CarbonEventTarget target;
    EXPECT_EQ(InstallEventHandler(nullptr, call, 1, &kShown, nullptr, nullptr), paramErr);
    EXPECT_EQ(InstallEventHandler(&target, nullptr, 1, &kShown, nullptr, nullptr), paramErr);
    EXPECT_EQ(InstallEventHandler(&target, call, 0, &kShown, nullptr, nullptr), paramErr);
}

TEST(CarbonEventTest, AParameterIsReadByNameAndTypeUpToTheBuffersSize) {
    CarbonEvent event(kEventClassKeyboard, kEventRawKeyDown);
    const char text[] = {'a', 'b'};
    event.with(kEventParamKeyMacCharCodes, typeChar, text);
    char first[2] = {};
    std::size_t size = 0;
    const auto read = [&](EventParamName name, EventParamType type) {
        return GetEventParameter(&event, name, type, nullptr, 1, &size, first);
    };
    EXPECT_EQ(read(kEventParamKeyMacCharCodes, typeChar), noErr);
    EXPECT_THAT(first, testing::ElementsAre('a', '\0'));
    EXPECT_EQ(size, 2u);
    EXPECT_EQ(read(kEventParamKeyMacCharCodes, typeHIPoint), eventParameterNotFoundErr);
    EXPECT_EQ(read(kEventParamMouseLocation, typeChar), eventParameterNotFoundErr);
}

class CarbonWindowTest : public testing::Test {
    int argc_ = 1;
    char name_[5] = "test";
    char* argv_[2] = {name_, nullptr};
    QApplication application_{argc_, argv_};
};

OSStatus disposeOf(EventHandlerCallRef, EventRef, void* userData) {
    DisposeWindow(static_cast<WindowRef>(userData));
    return eventNotHandledErr;
}

TEST_F(CarbonWindowTest, AHandlerMayDisposeOfTheWindowWhichEndsItsLoop) {
    std::string called;
    Handler older{'1', noErr, &called};
    auto* window = new CarbonWindow(std::make_unique<QWidget>());
    const EventTargetRef target = GetWindowEventTarget(window);
    InstallEventHandler(target, call, 1, &kMouseUp, &older, nullptr);
    InstallEventHandler(target, disposeOf, 1, &kMouseUp, window, nullptr);
    QTimer::singleShot(0, [&] { window->send({kEventClassMouse, kEventMouseUp}); });
    EXPECT_EQ(RunAppModalLoopForWindow(window), noErr);
    EXPECT_EQ(called, "");
}

} // namespace
