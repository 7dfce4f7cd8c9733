// SPDX-License-Identifier: MIT
#include "platform/CoreServices/detail/AppleEventMessage.h"
#include "platform/CoreServices/detail/ProcessName.h"
#include "tests/platform/CoreServices/TestPeer.h"

#include <QDBusConnection>
#include <QElapsedTimer>

#include <fstream>
#include <unistd.h>

namespace {

/// This process and a peer, on a real bus.
class AppleEventsTest : public ProcessTest {
protected:
    AppleEventsTest() {
        EXPECT_TRUE(takePart());
        EXPECT_TRUE(waitUntil([&] { return peer_.ask() == 8; }));
    }

    TestPeer peer_;
};

TEST_F(AppleEventsTest, TheHandlersResultGoesBackAndWhatIsTooLargeIsRefused) {
    using Parameters = std::map<AEKeyword, AEDesc>;
    const auto large = [](std::size_t count, std::size_t bytes) {
        Parameters all{{keyDirectObject, {typeCode, {7, 0}}}};
        for (AEKeyword keyword = 1; all.size() < count; ++keyword)
            all[keyword] = {typeBoolean, {}};
        all.begin()->second.data.resize(bytes - 2);
        return all;
    };

    const struct {
        const char* what;
        Parameters parameters;
        OSErr result;
    } cases[] = {{"missing", {}, errAEDescNotFound},
                 {"short", {{keyDirectObject, {typeCode, {7}}}}, paramErr},
                 {"long", {{keyDirectObject, {typeCode, {7, 0, 0, 0}}}}, paramErr},
                 {"mistyped", {{keyDirectObject, {typeBoolean, {7, 0}}}}, errAECoercionFail},
                 {"the least", {{keyDirectObject, {typeCode, {0, 0x80}}}}, -32768},
                 {"most parameters", large(kMaxEventParameters, 2), 7},
                 {"most bytes", large(2, kMaxEventBytes), 7},
                 {"more parameters", large(kMaxEventParameters + 1, 2), errAEEventNotHandled},
                 {"more bytes", large(2, kMaxEventBytes + 1), errAEEventNotHandled}};

    for (const auto& row : cases)
        EXPECT_EQ(sendAndWait(makeEvent(peer_.psn(), kTestClass, kAnswerCode, row.parameters)),
                  row.result)
            << row.what;
    EXPECT_EQ(sendAndWait(makeEvent(peer_.psn(), kTestClass, kOther)), errAEEventNotHandled);
    EXPECT_EQ(peer_.ask(), 8);
}

// Any program on the bus can send these.
TEST_F(AppleEventsTest, OtherCallsAreAnsweredWithAnError) {
    const QVariant event = messageOfEvent(makeEvent({}, kTestClass, 0)).arguments().at(2);

    const struct {
        const char *interface, *member;
        QVariantList arguments;
        QDBusError::ErrorType error;
    } cases[] = {{"AppleEvents1", "Event", {1u, 2u, event}, QDBusError::NoError},
                 {"AppleEvents1", "Event", {}, QDBusError::InvalidArgs},
                 {"AppleEvents1", "Event", {1, 2, event}, QDBusError::InvalidArgs},
                 {"AppleEvents1", "Event", {1u, 2u, event, 3u}, QDBusError::InvalidArgs},
                 {"AppleEvents1", "Events", {1u, 2u, event}, QDBusError::UnknownInterface},
                 {"AppleEvents2", "Event", {1u, 2u, event}, QDBusError::UnknownInterface}};

    for (const auto& row : cases) {
        auto call = QDBusMessage::createMethodCall(
            formatUniqueName(peer_.psn()), QStringLiteral("/org/korvex/AppleEvents"),
            QLatin1String("org.korvex.") + row.interface, row.member);
        call.setArguments(row.arguments);
        EXPECT_EQ(QDBusError(QDBusConnection::sessionBus().call(call)).type(), row.error)
            << row.interface << ' ' << row.member << ", " << row.arguments.size() << " arguments";
    }
    EXPECT_EQ(peer_.ask(), 8);
}

/// In MiB.
long memoryOf(pid_t process) {
    std::ifstream file("/proc/" + std::to_string(process) + "/statm");
    long all = 0, resident = 0;
    file >> all >> resident;
    return resident * sysconf(_SC_PAGESIZE) / (1 << 20);
}

/// MiB that may stay of 128 MiB of events. The sanitizer keeps what was freed for a while: 256 MiB,
/// and what lies around it.
#ifdef __SANITIZE_ADDRESS__
constexpr long kMostKept = 600;
#else
constexpr long kMostKept = 100;
#endif

TEST_F(AppleEventsTest, AFloodLeavesRoomForOthersAndItsLastReportCounts) {
    const long before = memoryOf(peer_.pid());
    auto flooder = QDBusConnection::connectToBus(QDBusConnection::SessionBus, "flooder");
    for (int code = 0; code < 30'000; ++code) {
        const std::vector<UInt8> bytes{static_cast<UInt8>(code), static_cast<UInt8>(code >> 8)};
        flooder.send(messageOfEvent(
            makeEvent(peer_.psn(), kTestClass, kReport, {{keyDirectObject, {typeCode, bytes}}})));
    }
    // Handling all of them would take half a minute.
    QElapsedTimer timer;
    timer.start();
    EXPECT_EQ(peer_.ask(20 * 60), 8);
    EXPECT_LT(timer.elapsed(), 15'000);
    const AppleEvent last = makeEvent(peer_.psn(), kTestClass, kLastReport);
    EXPECT_TRUE(waitUntil([&] { return sendAndWait(last) == 29'999; }));

    for (int i = 0; i < 16; ++i) // of 8 MiB each
        EXPECT_EQ(
            sendAndWait(makeEvent(peer_.psn(), kTestClass, kAnswerCode,
                                  {{keyDirectObject, {typeCode, std::vector<UInt8>(8U << 20)}}})),
            errAEEventNotHandled);
    EXPECT_LT(memoryOf(peer_.pid()) - before, kMostKept);
}

TEST_F(AppleEventsTest, OnlyAWaitingSenderWaitsForAHangingPeerAndOnlySoLong) {
    peer_.signal(SIGSTOP);
    QElapsedTimer timer;
    timer.start();
    const AppleEvent event = makeEvent(peer_.psn(), kTestClass, kAnswerCode);
    EXPECT_EQ(AESend(&event, nullptr, kAENoReply, kAEDefaultTimeout), noErr);
    OSErr later = noErr;
    sendThen(event, 60, [&](OSErr result) { later = result; });
    EXPECT_LT(timer.restart(), 900);
    EXPECT_EQ(peer_.ask(60), errAETimeout);
    EXPECT_GE(timer.elapsed(), 950);
    EXPECT_TRUE(QTest::qWaitFor([&] { return later == errAETimeout; }));
    EXPECT_LT(timer.elapsed(), 10'000);
    peer_.signal(SIGCONT);
    EXPECT_EQ(peer_.ask(), 8) << "the late answer is taken for this one";
    sendThen(event, kAEDefaultTimeout, [&](OSErr result) { later = result; });
    EXPECT_TRUE(QTest::qWaitFor([&] { return later == errAEDescNotFound; }));
    peer_.signal(SIGKILL);
    EXPECT_TRUE(waitUntil([&] { return peer_.ask() == procNotFound; })) << "it is gone";
}

} // namespace
