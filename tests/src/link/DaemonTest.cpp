// SPDX-License-Identifier: MIT
#include "src/link/Daemon.h"

#include "platform/CoreServices/detail/AppleEventMessage.h"
#include "platform/CoreServices/detail/SessionBus.h"
#include "tests/support/PaneFixture.h"
#include "tests/support/SignalProcess.h"

#include <QDBusPendingCall>
#include <QDBusVirtualObject>

#include <cmath>
#include <cstring>

namespace {

constexpr AEEventClass kAgentClass = fourCharCode("Krvx");
constexpr AEEventID kOnOff = fourCharCode("PPon");
constexpr AEEventID kSays = fourCharCode("PPsy");
constexpr DescType kText = fourCharCode("utf8");

using Parameters = std::map<AEKeyword, AEDesc>;

Parameters state(DescType type, std::vector<UInt8> bytes) {
    return {{keyDirectObject, {type, std::move(bytes)}}};
}

/// An agent that takes part by the name that it takes and gives up on one connection.
class NamedAgent final : public QDBusVirtualObject {
public:
    explicit NamedAgent(QDBusConnection bus) : bus_(std::move(bus)) {
        bus_.registerVirtualObject(kEventObjectPath, this);
    }

    ~NamedAgent() override {
        if (takesPart_)
            setTakingPart(false);
        bus_.unregisterObject(kEventObjectPath);
    }

    /// The pane knows of it when this returns.
    void setTakingPart(bool takesPart) {
        takesPart_ = takesPart;
        const auto name = QStringLiteral("org.korvex.Process1.t4150504C.s4B727678.p1");
        takesPart ? bus_.registerService(name) : bus_.unregisterService(name);
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return (findProcess(fourCharCode("Krvx")) != kNoProcess) == takesPart; }));
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override {
        const auto event = eventOfMessage(message);
        if (!event)
            return false;
        UInt32 mask = 0;
        std::size_t size;
        AEGetParamPtr(&*event, fourCharCode("Chng"), typeUInt32, nullptr, &mask, sizeof mask,
                      &size);
        heard_.emplace_back(event->eventID, mask);
        return true;
    }

    /// The IDs, with the masks, of what it has heard since the last call.
    std::vector<std::pair<AEEventID, UInt32>> heard() {
        QTest::qWait(kEnoughForAll);
        return std::exchange(heard_, {});
    }

private:
    static constexpr int kEnoughForAll = 200; // ms

    QDBusConnection bus_;
    bool takesPart_ = false;
    std::vector<std::pair<AEEventID, UInt32>> heard_;
};

/// The link and the real agent. The pane takes part only where the test opens it.
class DaemonTest : public PaneTest {
protected:
    ~DaemonTest() override { daemonCleanup(); }

    /// The answer to an event from another program to this one.
    int answerTo(AEEventClass eventClass, AEEventID eventID, const Parameters& parameters) {
        AppleEvent event{eventClass, eventID, {}, parameters};
        EXPECT_EQ(GetCurrentProcess(&event.target), noErr);
        const QDBusPendingCall call = otherProgram_.asyncCall(messageOfEvent(event));
        EXPECT_TRUE(QTest::qWaitFor([&] { return call.isFinished(); }, 30'000));
        return call.reply().arguments().value(0, -1).toInt();
    }

    QDBusConnection otherProgram_ =
        QDBusConnection::connectToBus(QDBusConnection::SessionBus, QStringLiteral("other"));
};

TEST_F(DaemonTest, OnlyAReportOfAnotherStateIsKeptAndNoneIsSentBack) {
    openWithAgent();
    const Parameters off = state(typeBoolean, {0});

    const struct {
        const char* what;
        UInt8 before;
        AEEventID eventID;
        Parameters parameters;
        int answer;
        UInt8 after;
    } cases[] = {
        {"off", 1, kOnOff, off, noErr, 0},
        {"on, other byte", 0, kOnOff, state(typeBoolean, {2}), noErr, 1},
        {"two bytes", 1, kOnOff, state(typeBoolean, {0, 0}), noErr, 1},
        {"63 MiB, which leave it hearing", 1, kOnOff,
         state(typeBoolean, std::vector<UInt8>(63 << 20)), noErr, 1},
        {"an event for the agent", 1, fourCharCode("SAPr"), off, errAEEventNotHandled, 1},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        prefs.on = row.before;
        EXPECT_EQ(answerTo(kAgentClass, row.eventID, row.parameters), row.answer);
        EXPECT_EQ(prefs.on, row.after);
        prefsFlushChanges();
        EXPECT_EQ(fs::remove(storedFile()), row.before != row.after) << "saved";
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_EQ(answerTo(kAgentClass, kOnOff, off), errAEEventNotHandled)
        << "after the pane was put away";
}

TEST_F(DaemonTest, AnAgentIsToldWhatItMissedHoweverItComesBack) {
    using testing::ElementsAre;
    constexpr AEEventID kOpened = fourCharCode("PPop"), kRecord = fourCharCode("SAPr"),
                        kQuit = fourCharCode("quit");
    daemonSetup(nullptr);
    daemonSendChanges(kChangeOnOff | kChangeForceOnOff, true); // on, for sure
    prefs.on = 0;
    daemonSendChanges(kChangeOnOff, true);
    NamedAgent agent(otherProgram_);
    agent.setTakingPart(true);
    EXPECT_THAT(agent.heard(), ElementsAre(std::pair(kOpened, 0), std::pair(kRecord, kChangeOnOff)))
        << "none is told to be off for sure";

    agent.setTakingPart(false);
    daemonSendChanges(kChangeSounds, true);
    agent.setTakingPart(true);
    EXPECT_THAT(agent.heard(), ElementsAre(std::pair(kRecord, kChangeOnOff | kChangeSounds)))
        << "on the same connection";
    daemonSendChanges(kChangeOnOff | kChangeForceOnOff, true);
    daemonSendChanges(kChangeSounds, true);
    EXPECT_THAT(agent.heard(), ElementsAre(std::pair(kQuit, 0), std::pair(kRecord, kChangeSounds)))
        << "until its name is gone it still gets them";
    prefs.on = 1;
}

TEST_F(DaemonTest, TheAgentLetsGoOfTheKeysWhileAnyPartOfThePaneNeedsThem) {
    daemonHoldKeys(true); // before there is a link
    startAgent();
    daemonSetup(nullptr);
    EXPECT_EQ(agentLog_.nextOfAll()["event"], QStringLiteral("PPop"));
    EXPECT_TRUE(agentLog_.nextHold());
    {
        AgentHold inner;
        inner.set(true);
        inner.set(true);
        daemonHoldKeys(false);
        signalProcess(agentPID(), SIGKILL);
        ASSERT_TRUE(QTest::qWaitFor([] { return agentPID() == 0; }, 10'000));
        startAgent();
        EXPECT_TRUE(agentLog_.nextHold()) << "one that came up meanwhile";
    }
    EXPECT_FALSE(agentLog_.nextHold()) << "once for all of them";
    AgentHold last;
    last.set(true);
    EXPECT_TRUE(agentLog_.nextHold());
    daemonCleanup();
    last.set(false);
    EXPECT_EQ(agentLog_.nextOfAll()["event"], QStringLiteral("PPcl")) << "which ends it too";
}

TEST_F(DaemonTest, WhatTheAgentSaysStandsInTheStripUntilItIsGone) {
    daemonSetup(nullptr);
    const auto say = [this](std::string text, DescType type = kText) {
        return answerTo(kAgentClass, kSays, state(type, {text.begin(), text.end()}));
    };
    EXPECT_EQ(say("Nobody."), errAEEventNotHandled) << "no agent takes part";
    NamedAgent agent(otherProgram_);
    agent.setTakingPart(true);
    const std::string longest = std::string(498, 'x') + "ü";
    for (const std::string& text : {std::string("Another agent is running."), longest}) {
        EXPECT_EQ(say(text), noErr);
        EXPECT_EQ(told(), text);
        EXPECT_EQ(currentMessage()->message.kind, UserMessage::Kind::Alert);
    }
    for (const char* text : {"two\nlines", "\x1B[31m", "\xFC", "\xE2\x80\xAEturned", "\x7F"})
        EXPECT_EQ(say(text), paramErr) << text;
    EXPECT_EQ(say(longest + "."), paramErr);
    EXPECT_EQ(say("A number?", typeBoolean), errAECoercionFail);
    EXPECT_EQ(answerTo(kAgentClass, kSays, {}), errAEDescNotFound);
    EXPECT_EQ(told(), longest) << "none of these changed it";
    EXPECT_EQ(say(""), noErr);
    EXPECT_EQ(told(), "");
    say("Gone soon.");
    agent.setTakingPart(false);
    EXPECT_TRUE(QTest::qWaitFor([] { return told().empty(); })) << told();
}

TEST_F(DaemonTest, ACommandsSettingsAreCheckedLikeThoseOfAFile) {
    openWithAgent();
    const auto set = [this](const SettingSet& settings, auto change, std::uint64_t more = 0,
                            long missing = 0) {
        PrefsRecord record = prefs;
        change(record);
        const auto* bytes = reinterpret_cast<const UInt8*>(&record);
        const std::uint64_t bits = settings.to_ullong() | more;
        const auto* bitBytes = reinterpret_cast<const UInt8*>(&bits);
        return answerTo(
            kAgentClass, fourCharCode("PSet"),
            {{keyDirectObject, {fourCharCode("KrPf"), {bytes, bytes + kRecordSize - missing}}},
             {fourCharCode("Sets"), {fourCharCode("comp"), {bitBytes, bitBytes + 8}}}});
    };
    const PrefsRecord before = prefs;
    const SettingSet all = SettingSet().set();
    const auto fill = [](auto& field) { std::memset(&field, 'x', sizeof field); };
    EXPECT_EQ(set(all, [](auto& r) { r.lineScanTime = 0.5; }), paramErr);
    EXPECT_EQ(set(all, [](auto& r) { r.lineScanTime = std::nan(""); }), paramErr);
    EXPECT_EQ(set(all, [](auto& r) { r.useScanArea = 1; }), paramErr) << "without an area";
    EXPECT_EQ(set(all, [](auto& r) { r.buttonActions[8] = 40; }), paramErr);
    EXPECT_EQ(set(all, [&](auto& r) { fill(r.pointerImageName); }), paramErr) << "without a zero";
    EXPECT_EQ(set(
                  {}, [](auto&) {}, std::uint64_t{1} << kSettings.size()),
              paramErr);
    EXPECT_EQ(set(
                  all, [](auto& r) { r.lineThickness = 9; }, 0, 1),
              paramErr)
        << "a byte short";
    EXPECT_EQ(std::memcmp(&prefs, &before, sizeof before), 0);
    EXPECT_EQ(set(all, [](auto& r) { r.launchAtLogin = r.on = 255; }), noErr);
    EXPECT_EQ(set(all, [](auto& r) { r.canScanMenuBar = 0; }), noErr);
    EXPECT_EQ(prefs.on, 1) << "a flag has two values";
    EXPECT_THAT(remainingMasks(), testing::ElementsAre(0u));
}

} // namespace
