#include "platform/CoreServices/AppleEventObject.h"
#include "platform/CoreServices/ProcessName.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <QDBusConnection>
#include <QElapsedTimer>
#include <gmock/gmock.h>

#include <deque>

using testing::Each;
using testing::ElementsAre;

namespace {

struct Handler {
    AEEventClass eventClass;
    AEEventID eventID;
    OSErr result;
};

OSErr handle(const AppleEvent*, AppleEvent*, void* handler) {
    return static_cast<Handler*>(handler)->result;
}

OSErr handleOtherwise(const AppleEvent*, AppleEvent*, void*) {
    return 9;
}

/// What becomes of the events of two classes and two IDs each.
std::vector<OSErr> dispatchFour() {
    std::vector<OSErr> results;
    for (const AEEventClass eventClass : {kTestClass, kCoreEventClass}) {
        for (const AEEventID eventID : {kAnswerCode, kSendBack}) {
            AppleEvent reply;
            results.push_back(dispatchAppleEvent({eventClass, eventID, {}, {}}, &reply));
        }
    }
    return results;
}

TEST(AppleEventTest, TheMostSpecificHandlerTakesAnEventClassBeforeID) {
    Handler handlers[] = {
        {kTestClass, kAnswerCode, 1},
        {kTestClass, typeWildCard, 2},
        {typeWildCard, kAnswerCode, 3},
        {typeWildCard, typeWildCard, 4},
    };
    const auto remove = [&](int i, AEEventHandler handler) {
        return AERemoveEventHandler(handlers[i].eventClass, handlers[i].eventID, handler);
    };
    EXPECT_THAT(dispatchFour(), Each(errAEEventNotHandled));
    for (Handler& each : handlers)
        AEInstallEventHandler(each.eventClass, each.eventID, handle, &each);
    EXPECT_THAT(dispatchFour(), ElementsAre(1, 2, 3, 4));
    EXPECT_EQ(remove(0, handleOtherwise), errAEHandlerNotFound);
    EXPECT_EQ(remove(0, handle), noErr);
    EXPECT_EQ(remove(0, handle), errAEHandlerNotFound);
    EXPECT_THAT(dispatchFour(), ElementsAre(2, 2, 3, 4));
    remove(1, handle);
    EXPECT_THAT(dispatchFour(), ElementsAre(3, 4, 3, 4));
    remove(2, handle);
    EXPECT_THAT(dispatchFour(), Each(4));
    AEInstallEventHandler(typeWildCard, typeWildCard, handleOtherwise, nullptr);
    EXPECT_THAT(dispatchFour(), Each(9));
}

/// This process and a peer, on a real bus.
class AppleEventsTest : public ProcessTest {
protected:
    AppleEventsTest() {
        EXPECT_TRUE(takePart());
        EXPECT_TRUE(waitUntil([&] { return isThere(); }));
    }

    bool isThere() {
        pid_t pid;
        return GetProcessPID(&peer_.psn(), &pid) == noErr;
    }

    /// What the peer answers to an event of its class and these parameters.
    OSErr ask(const std::map<AEKeyword, AEDesc>& parameters) {
        return sendAndWait(makeEvent(peer_.psn(), kTestClass, kAnswerCode, parameters));
    }

    TestPeer peer_;
};

TEST_F(AppleEventsTest, TravelInBothDirectionsInOrderAndWhole) {
    static std::deque<AppleEvent> received;
    const AEEventHandler receive = [](const AppleEvent* event, AppleEvent*, void*) {
        received.push_back(*event);
        return OSErr{noErr};
    };
    AEInstallEventHandler(kTestClass, kSentBack, receive, nullptr);
    AEDesc record{fourCharCode("KrPf"), std::vector<UInt8>(340)};
    AppleEvent event =
        makeEvent(peer_.psn(), kTestClass, kSendBack, {{fourCharCode("none"), {typeBoolean, {}}}});
    ProcessSerialNumber self;
    ASSERT_EQ(GetCurrentProcess(&self), noErr);
    AEPutParamPtr(&event, keyTestProcess, typeProcessSerialNumber, &self, sizeof self);
    for (UInt8 i = 0; i < 100; ++i) {
        record.data[i] = i;
        event.parameters[keyDirectObject] = record;
        EXPECT_EQ(AESend(&event, nullptr, kAENoReply | kAEDontRecord, kAEDefaultTimeout), noErr);
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return received.size() == 100; }, 20'000));
    record.data.assign(340, 0);
    for (UInt8 i = 0; i < 100; ++i) {
        record.data[i] = i;
        auto& parameters = received[i].parameters;
        EXPECT_EQ(parameters.size(), 3u);
        EXPECT_EQ(parameters[keyDirectObject].descriptorType, record.descriptorType);
        EXPECT_EQ(parameters[keyDirectObject].data, record.data);
        EXPECT_EQ(parameters[fourCharCode("none")].descriptorType, typeBoolean);
    }
}

TEST_F(AppleEventsTest, TheHandlersResultGoesBack) {
    const struct {
        const char* what;
        std::map<AEKeyword, AEDesc> parameters;
        OSErr result;
    } cases[] = {
        {"missing", {}, errAEDescNotFound},
        {"under another keyword", {{keyTestProcess, {typeCode, {7, 0}}}}, errAEDescNotFound},
        {"short", {{keyDirectObject, {typeCode, {7}}}}, paramErr},
        {"empty", {{keyDirectObject, {typeCode, {}}}}, paramErr},
        {"long", {{keyDirectObject, {typeCode, {7, 0, 0, 0}}}}, paramErr},
        {"mistyped", {{keyDirectObject, {typeBoolean, {7, 0}}}}, errAECoercionFail},
        {"7", {{keyDirectObject, {typeCode, {7, 0}}}}, 7},
        {"noErr", {{keyDirectObject, {typeCode, {0, 0}}}}, noErr},
        {"the least", {{keyDirectObject, {typeCode, {0, 0x80}}}}, -32768},
    };

    for (const auto& row : cases)
        EXPECT_EQ(ask(row.parameters), row.result) << row.what;
    for (const auto& [eventClass, eventID] :
         {std::pair(kTestClass, kSentBack), {kCoreEventClass, kAnswerCode}, {0u, 0u}})
        EXPECT_EQ(sendAndWait(makeEvent(peer_.psn(), eventClass, eventID)), errAEEventNotHandled);
}

TEST_F(AppleEventsTest, WhatIsTooLargeIsRefusedAndNotHandled) {
    const auto parameters = [](std::size_t count, std::size_t bytes) {
        std::map<AEKeyword, AEDesc> all{{keyDirectObject, {typeCode, {7, 0}}}};
        for (AEKeyword keyword = 1; all.size() < count; ++keyword)
            all[keyword] = {typeBoolean, {}};
        all.begin()->second.data.resize(bytes - 2);
        return all;
    };
    EXPECT_EQ(ask(parameters(kMaxEventParameters, 2)), 7);
    EXPECT_EQ(ask(parameters(2, kMaxEventBytes)), 7);
    EXPECT_EQ(ask(parameters(kMaxEventParameters + 1, 2)), errAEEventNotHandled);
    EXPECT_EQ(ask(parameters(2, kMaxEventBytes + 1)), errAEEventNotHandled);
    EXPECT_EQ(peer_.ask(), 8);
}

// What any program on the bus can send.
TEST_F(AppleEventsTest, OtherCallsAreAnsweredWithAnError) {
    const auto bus = QDBusConnection::sessionBus();
    const QVariant event = messageOfEvent(makeEvent({}, kTestClass, 0)).arguments().at(2);
    const QVariantList whole{1u, 2u, event};

    const struct {
        const char *object, *interface, *member;
        QVariantList arguments;
        QDBusError::ErrorType error;
    } cases[] = {
        {"AppleEvents", "AppleEvents1", "Event", whole, QDBusError::NoError},
        {"AppleEvents", "AppleEvents1", "Event", {}, QDBusError::InvalidArgs},
        {"AppleEvents", "AppleEvents1", "Event", {"x"}, QDBusError::InvalidArgs},
        {"AppleEvents", "AppleEvents1", "Event", {1u, 2u}, QDBusError::InvalidArgs},
        {"AppleEvents", "AppleEvents1", "Event", {1, 2, event}, QDBusError::InvalidArgs},
        {"AppleEvents", "AppleEvents1", "Event", {1u, 2u, "x"}, QDBusError::InvalidArgs},
        {"AppleEvents", "AppleEvents1", "Event", {1u, 2u, event, 3u}, QDBusError::InvalidArgs},
        {"AppleEvents", "AppleEvents1", "Events", whole, QDBusError::UnknownInterface},
        {"AppleEvents", "AppleEvents2", "Event", whole, QDBusError::UnknownInterface},
        {"Nowhere", "AppleEvents1", "Event", whole, QDBusError::UnknownObject},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.object << ' ' << row.interface << ' ' << row.member
                                        << ", " << row.arguments.size() << " arguments");
        auto call = QDBusMessage::createMethodCall(
            formatUniqueName(peer_.psn()), QLatin1String("/org/korvex/") + row.object,
            QLatin1String("org.korvex.") + row.interface, row.member);
        call.setArguments(row.arguments);
        const QDBusMessage reply = bus.call(call);
        EXPECT_EQ(QDBusError(reply).type(), row.error) << reply.errorMessage().toStdString();
    }
    EXPECT_EQ(peer_.ask(), 8);
}

TEST_F(AppleEventsTest, OnlyAWaitingSenderWaitsForAHangingPeerAndOnlySoLong) {
    peer_.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const AppleEvent event = makeEvent(peer_.psn(), kTestClass, kAnswerCode);
    EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), noErr);
    EXPECT_LT(timer.elapsed(), 2000);
    timer.start();
    EXPECT_EQ(peer_.ask(60), errAETimeout);
    EXPECT_GE(timer.elapsed(), 950);
    EXPECT_LT(timer.elapsed(), 10'000);
    peer_.signal(SIGCONT);
    EXPECT_EQ(peer_.ask(), 8) << "the late answer is taken for this one";
}

TEST_F(AppleEventsTest, APeerThatIsGoneCantBeSentTo) {
    peer_.kill();
    ASSERT_TRUE(waitUntil([&] { return !isThere(); }));
    EXPECT_EQ(peer_.ask(), procNotFound);
    EXPECT_EQ(sendAndWait(makeEvent(kNoProcess, kTestClass, kAnswerCode)), procNotFound);
}

} // namespace
