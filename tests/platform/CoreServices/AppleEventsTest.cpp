#include "platform/CoreServices/AppleEventObject.h"
#include "platform/CoreServices/ProcessName.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QElapsedTimer>
#include <gmock/gmock.h>

#include <cstring>
#include <deque>
#include <optional>

namespace {

using Bytes = std::vector<UInt8>;

TEST(AppleEventTest, ParametersAreReadByTypeAndNeverBeyondTheBuffer) {
    constexpr AEKeyword present = fourCharCode("here");
    const Bytes bytes{1, 2, 3, 4};
    AppleEvent event;
    ASSERT_EQ(AEPutParamPtr(&event, present, typeUInt32, bytes.data(), 4), noErr);
    AEPutParamPtr(&event, fourCharCode("none"), typeUInt32, nullptr, 0);

    const struct {
        AEKeyword keyword;
        DescType type;
        std::size_t room;
        OSErr result;
        Bytes read; ///< into a buffer of nines
        std::size_t size;
    } cases[] = {
        {present, typeUInt32, 4, noErr, {1, 2, 3, 4, 9}, 4},
        {present, typeWildCard, 5, noErr, {1, 2, 3, 4, 9}, 4},
        {present, typeUInt32, 1, noErr, {1, 9, 9, 9, 9}, 4},
        {present, typeUInt32, 0, noErr, {9, 9, 9, 9, 9}, 4},
        {present, typeBoolean, 4, errAECoercionFail, {9, 9, 9, 9, 9}, 77},
        {fourCharCode("none"), typeUInt32, 4, noErr, {9, 9, 9, 9, 9}, 0},
        {fourCharCode("gone"), typeUInt32, 4, errAEDescNotFound, {9, 9, 9, 9, 9}, 77},
    };

    for (const auto& row : cases) {
        Bytes buffer(5, 9);
        std::size_t size = 77;
        DescType type = 0;
        EXPECT_EQ(
            AEGetParamPtr(&event, row.keyword, row.type, &type, buffer.data(), row.room, &size),
            row.result);
        EXPECT_EQ(buffer, row.read);
        EXPECT_EQ(size, row.size);
        EXPECT_EQ(type, row.result == noErr ? typeUInt32 : 0);
    }
    EXPECT_EQ(AEPutParamPtr(&event, present, typeUInt32, nullptr, 4), paramErr);
}

TEST(AppleEventTest, AnAddressIsAProcessSerialNumber) {
    const ProcessSerialNumber psn{1, 2};

    const struct {
        DescType type;
        std::size_t size;
        OSErr result;
    } cases[] = {
        {typeProcessSerialNumber, 8, noErr},
        {typeProcessSerialNumber, 7, paramErr},
        {typeProcessSerialNumber, 0, paramErr},
        {typeUInt32, 8, paramErr},
    };

    for (const auto& row : cases) {
        AEAddressDesc address;
        AppleEvent event;
        ASSERT_EQ(AECreateDesc(row.type, &psn, row.size, &address), noErr);
        EXPECT_EQ(AECreateAppleEvent(kTestClass, kAnswerCode, &address, kAutoGenerateReturnID,
                                     kAnyTransactionID, &event),
                  row.result);
    }
}

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
    using testing::ElementsAre;
    constexpr OSErr kNobody = errAEEventNotHandled;
    Handler handlers[] = {
        {kTestClass, kAnswerCode, 1},
        {kTestClass, typeWildCard, 2},
        {typeWildCard, kAnswerCode, 3},
        {typeWildCard, typeWildCard, 4},
    };
    const auto remove = [&](int i, AEEventHandler handler) {
        return AERemoveEventHandler(handlers[i].eventClass, handlers[i].eventID, handler);
    };
    EXPECT_THAT(dispatchFour(), ElementsAre(kNobody, kNobody, kNobody, kNobody));
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
    EXPECT_THAT(dispatchFour(), ElementsAre(4, 4, 4, 4));
    AEInstallEventHandler(typeWildCard, typeWildCard, handleOtherwise, nullptr);
    EXPECT_THAT(dispatchFour(), ElementsAre(9, 9, 9, 9));
    EXPECT_EQ(AEInstallEventHandler(kTestClass, kAnswerCode, nullptr, nullptr), paramErr);
}

/// This process and a peer, on a real bus.
class AppleEventsTest : public ProcessTest {
protected:
    AppleEventsTest() {
        EXPECT_TRUE(takePart());
        EXPECT_EQ(GetCurrentProcess(&self_), noErr);
        EXPECT_TRUE(waitUntil([&] { return isThere(); }));
    }

    bool isThere() {
        pid_t pid;
        return GetProcessPID(&peer_.psn(), &pid) == noErr;
    }

    /// What the peer answers to an event of its class and these parameters.
    OSErr ask(const std::map<AEKeyword, AEDesc>& parameters) {
        AppleEvent event = makeEvent(peer_.psn(), kTestClass, kAnswerCode);
        event.parameters = parameters;
        return AESend(&event, nullptr, kAEWaitReply, kAEDefaultTimeout);
    }

    TestPeer peer_;
    ProcessSerialNumber self_;
};

TEST_F(AppleEventsTest, TravelInBothDirectionsInOrderAndWhole) {
    static std::deque<AppleEvent> received;
    AEInstallEventHandler(
        kTestClass, kSentBack,
        [](const AppleEvent* event, AppleEvent*, void*) {
            received.push_back(*event);
            return OSErr{noErr};
        },
        nullptr);
    AppleEvent event = makeEvent(peer_.psn(), kTestClass, kSendBack);
    AEPutParamPtr(&event, keyTestProcess, typeProcessSerialNumber, &self_, sizeof self_);
    Bytes record(340);
    for (std::size_t i = 0; i < record.size(); ++i)
        record[i] = static_cast<UInt8>(i);
    AEPutParamPtr(&event, keyDirectObject, fourCharCode("KrPf"), record.data(), record.size());
    AEPutParamPtr(&event, fourCharCode("none"), typeBoolean, nullptr, 0);
    for (UInt32 i = 0; i < 100; ++i) {
        AEPutParamPtr(&event, fourCharCode("Chng"), typeUInt32, &i, sizeof i);
        EXPECT_EQ(AESend(&event, nullptr, kAENoReply | kAEDontRecord, kAEDefaultTimeout), noErr);
    }
    ASSERT_TRUE(QTest::qWaitFor([&] { return received.size() == 100; }, 20'000));
    for (UInt32 i = 0; i < 100; ++i) {
        UInt32 number = 0;
        AEGetParamPtr(&received[i], fourCharCode("Chng"), typeUInt32, nullptr, &number, 4, nullptr);
        EXPECT_EQ(number, i);
        EXPECT_EQ(received[i].parameters.size(), 4u);
        const AEDesc& object = received[i].parameters[keyDirectObject];
        EXPECT_EQ(object.descriptorType, fourCharCode("KrPf"));
        EXPECT_EQ(object.data, record);
        EXPECT_EQ(received[i].parameters[fourCharCode("none")].descriptorType, typeBoolean);
    }
}

TEST_F(AppleEventsTest, TheHandlersResultGoesBack) {
    for (const SInt16 code : std::initializer_list<SInt16>{0, 1, -1708, -32768, 32767})
        EXPECT_EQ(peer_.ask(code), code);

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
        {"right", {{keyDirectObject, {typeCode, {7, 0}}}}, 7},
    };

    for (const auto& row : cases)
        EXPECT_EQ(ask(row.parameters), row.result) << row.what;

    for (const auto& [eventClass, eventID] :
         {std::pair(kTestClass, kSentBack), {kCoreEventClass, kAnswerCode}, {0u, 0u}}) {
        const AppleEvent event = makeEvent(peer_.psn(), eventClass, eventID);
        EXPECT_EQ(AESend(&event, nullptr, kAEWaitReply, kAEDefaultTimeout), errAEEventNotHandled);
    }
    EXPECT_EQ(AESend(nullptr, nullptr, kAEWaitReply, kAEDefaultTimeout), paramErr);
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
    EXPECT_EQ(peer_.ask(8), 8);
}

// What any program on the bus can send.
TEST_F(AppleEventsTest, OtherCallsAreAnsweredWithAnError) {
    auto bus = QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
    const QVariant event = messageOfEvent(makeEvent({}, kTestClass, 0)).arguments().at(2);

    const struct {
        const char *path, *interface, *member;
        QVariantList arguments;
        QDBusError::ErrorType error;
    } cases[] = {
        {"AppleEvents", "org.korvex.AppleEvents1", "Event", {1u, 2u, event}, QDBusError::NoError},
        {"AppleEvents", "", "Event", {1u, 2u, event}, QDBusError::NoError},
        {"AppleEvents", "org.korvex.AppleEvents1", "Event", {}, QDBusError::InvalidArgs},
        {"AppleEvents", "org.korvex.AppleEvents1", "Event", {1u, 2u}, QDBusError::InvalidArgs},
        {"AppleEvents", "org.korvex.AppleEvents1", "Event", {1, 2, event}, QDBusError::InvalidArgs},
        {"AppleEvents", "org.korvex.AppleEvents1", "Event", {"x"}, QDBusError::InvalidArgs},
        {"AppleEvents",
         "org.korvex.AppleEvents1",
         "Event",
         {1u, 2u, QByteArray("x")},
         QDBusError::InvalidArgs},
        {"AppleEvents",
         "org.korvex.AppleEvents1",
         "Event",
         {1u, 2u, event, 3u},
         QDBusError::InvalidArgs},
        {"AppleEvents",
         "org.korvex.AppleEvents1",
         "Events",
         {1u, 2u, event},
         QDBusError::UnknownInterface},
        {"AppleEvents",
         "org.korvex.AppleEvents2",
         "Event",
         {1u, 2u, event},
         QDBusError::UnknownInterface},
        {"Nowhere", "org.korvex.AppleEvents1", "Event", {1u, 2u, event}, QDBusError::UnknownObject},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(testing::Message() << row.path << ' ' << row.interface << ' ' << row.member
                                        << ", " << row.arguments.size() << " arguments");
        auto call = QDBusMessage::createMethodCall(formatUniqueName(peer_.psn()),
                                                   QLatin1String("/org/korvex/") + row.path,
                                                   row.interface, row.member);
        call.setArguments(row.arguments);
        const QDBusMessage reply = bus.call(call);
        EXPECT_EQ(QDBusError(reply).type(), row.error) << reply.errorMessage().toStdString();
        if (row.error == QDBusError::NoError) {
            EXPECT_EQ(reply.arguments(), QVariantList{int{errAEEventNotHandled}});
        }
    }
    EXPECT_EQ(peer_.ask(8), 8);
}

TEST_F(AppleEventsTest, OnlyAWaitingSenderWaitsForAHangingPeerAndOnlySoLong) {
    peer_.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const AppleEvent event = makeEvent(peer_.psn(), kTestClass, kAnswerCode);
    EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), noErr);
    EXPECT_LT(timer.elapsed(), 2000);
    timer.start();
    EXPECT_EQ(peer_.ask(8, 60), errAETimeout);
    EXPECT_GE(timer.elapsed(), 950);
    EXPECT_LT(timer.elapsed(), 10'000);
    peer_.signal(SIGCONT);
    EXPECT_EQ(peer_.ask(8), 8) << "the late answer isn't taken for this one";
}

TEST_F(AppleEventsTest, APeerThatIsGoneCantBeSentTo) {
    peer_.kill();
    ASSERT_TRUE(waitUntil([&] { return !isThere(); }));
    EXPECT_EQ(peer_.ask(8), procNotFound);
    const AppleEvent event = makeEvent(kNoProcess, kTestClass, kAnswerCode);
    EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), procNotFound);
}

} // namespace
