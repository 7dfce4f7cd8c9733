// SPDX-License-Identifier: MIT
// What must never happen, tried with a real agent: something stays down, grabbed or on the screen.
#include "agent/session/Guard.h"
#include "agent/x11/XSwitches.h"
#include "platform/CoreFoundation/CFPreferences.h"
#include "src/store/prefs.h"
#include "tests/agent/ScannerFixture.h"

#include <QProcess>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iterator>

namespace {

using testing::ElementsAre;
using testing::Gt;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Lt;

constexpr double kFreeWithin = 0.05; ///< s after a killed agent's end
constexpr int kPrint = 107;          ///< it is in F13's place

/// Another program that takes the same keys, on a connection of its own.
class Others final : Switches::Listener {
public:
    explicit Others(const PrefsRecord& record) : server_(XServer::connect(fault_)) {
        switches_.use(record, 1);
    }

    /// Whether it gets all that it asks for, and keeps it.
    bool getKeys() {
        switches_.setState(Switches::State::Scanning);
        return switches_.taken().empty();
    }

    void letGo() { switches_.setState(Switches::State::Free); }

private:
    void switchDown(Switch, double) override {}

    void switchUp(Switch, double) override {}

    void onOffKey() override {}

    void showSettingsKey() override {}

    void cancelKey() override {}

    std::string fault_;
    std::unique_ptr<XServer> server_;
    XSwitches switches_{*server_, *this};
};

/// What the agent says to the pane.
std::vector<std::string> said;

OSErr says(const AppleEvent* event, AppleEvent*, void*) {
    char text[500];
    std::size_t size = 0;
    AEGetParamPtr(event, keyDirectObject, fourCharCode("utf8"), nullptr, text, sizeof text, &size);
    said.emplace_back(text, size);
    return noErr;
}

class ScannerFaultsTest : public ScannerTest {
protected:
    /// How long after `moment` nothing of the agent is left on the server. The first to look has
    /// the keys.
    double freeAfter(double moment, Others& others) {
        while (!(target_.down().empty() && agentWindows().empty() && others.getKeys()) &&
               XServer::now() < moment + 5)
            usleep(500);
        const double length = XServer::now() - moment;
        others.letGo();
        return length;
    }

    void expectNothingTaken() {
        target_.events();
        press();
        press(kSecondKey);
        mouse_.button(1, true);
        mouse_.button(1, false);
        EXPECT_THAT(target_.events(6), testing::SizeIs(6));
        EXPECT_THAT(agentWindows(), IsEmpty());
    }

    static int run(const QStringList& environment = {}) {
        QProcess agent;
        if (!environment.isEmpty())
            agent.setEnvironment(QProcess::systemEnvironment() + environment);
        agent.start(kProgram, QStringList());
        EXPECT_TRUE(agent.waitForFinished(15'000));
        return agent.exitStatus() == QProcess::NormalExit ? agent.exitCode() : -1;
    }

    inline static const QString kProgram = QStringLiteral(
        KORVEX_BUNDLE "/Contents/Linux/Korvex Agent.app/Contents/Linux/korvex-agent");
};

TEST_F(ScannerFaultsTest, KilledItLeavesNothingBehindAndIsBackAFewTimes) {
    CFPreferencesSetAppValue(CFSTR("scanner.activateAtLaunch"), CFSTR("no"), kAgentBundleID);
    CFPreferencesAppSynchronize(kAgentBundleID);
    PrefsRecord record = quickSettings();
    record.wantMouseClickTrigger = 1;
    double best = INFINITY;
    for (int kills = 0; kills <= Guard::kMostRestarts; ++kills) {
        waitForAgent();
        EXPECT_TRUE(isOn) << "it goes on as it was";
        use(record);
        begin();
        press();
        EXPECT_TRUE(QTest::qWaitFor([&] { return agentWindows().size() > 1; })) << "the pointer";
        Others others(record);
        const pid_t agent = agentPID();
        const double moment = XServer::now();
        signalAgent(SIGKILL);
        best = std::min(best, freeAfter(moment, others));
        waitForEnd(agent);
        target_.events();
    }
    EXPECT_LT(best, kFreeWithin) << "of a few: the machine is loaded";
    wait(1);
    EXPECT_EQ(agentPID(), 0);
    expectNothingTaken();
}

TEST_F(ScannerFaultsTest, HangingInAScanItIsEnded) {
    use(quickSettings());
    begin();
    Others others(settings_);
    const pid_t agent = agentPID();
    const double moment = XServer::now();
    signalAgent(SIGSTOP);
    EXPECT_THAT(freeAfter(moment, others),
                testing::AllOf(Gt(Guard::kLongestSilence - 0.6), Lt(Guard::kLongestSilence + 1)));
    waitForEnd(agent);

    // Another one scans in its place. At rest it may be stopped for as long as one likes, as a
    // debugger does.
    waitForAgent();
    EXPECT_NE(agentPID(), agent);
    use(quickSettings());
    signalAgent(SIGSTOP);
    wait(Guard::kLongestSilence + 0.5);
    signalAgent(SIGCONT);
    scan();
}

TEST_F(ScannerFaultsTest, OfTwoOneRemains) {
    use(quickSettings());
    const pid_t first = agentPID();
    EXPECT_EQ(run(), 0);
    EXPECT_EQ(agentPID(), first);
    scan();

    // Without a bus it ends, too, and takes nothing.
    signalAgent(SIGTERM);
    waitForEnd(first);
    EXPECT_EQ(run({QStringLiteral("DBUS_SESSION_BUS_ADDRESS=unix:path=/nonexistent")}), 1);
    expectNothingTaken();
}

TEST_F(ScannerFaultsTest, AKeyThatAnotherProgramHasIsToldOnce) {
    AEInstallEventHandler(fourCharCode("Krvx"), fourCharCode("PPsy"), says, nullptr);
    QProcess notifications;
    notifications.start("dbus-monitor", {"member='Notify'"});
    EXPECT_TRUE(notifications.waitForReadyRead());
    use(quickSettings());
    PrefsRecord record = quickSettings();
    record.hotKeys[1] = {0x69, 0}; // F13
    Others others(record);
    EXPECT_FALSE(others.getKeys()) << "the agent has on/off";
    for (int i = 0; i < 3; ++i)
        use(record);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !said.empty(); }));
    wait(0.2);
    const QByteArray text = "Another program has these keys: F13.";
    EXPECT_THAT(said, ElementsAre(HasSubstr(text.toStdString())));
    EXPECT_EQ(notifications.readAllStandardOutput().count(text), 1);
    EXPECT_THAT(agentWindows(), IsEmpty());

    others.letGo();
    use(record);
    EXPECT_TRUE(QTest::qWaitFor([] { return said.size() > 1; }));
    EXPECT_EQ(said.back(), "");
    press(kPrint);
    EXPECT_TRUE(waitForWindows(1));
}

/// As a screen saver says it.
void tellLocked(const QString& isLocked) {
    QProcess::execute("dbus-send",
                      {"/org/freedesktop/ScreenSaver", "org.freedesktop.ScreenSaver.ActiveChanged",
                       "boolean:" + isLocked});
    QTest::qWait(200);
}

TEST_F(ScannerFaultsTest, ALockedScreenHasTheKeys) {
    use(quickSettings());
    begin();
    tellLocked("true");
    expectNothingTaken();
    tellLocked("false");
    target_.events();
    scan();

    // A lock that tells nobody covers the screen and holds keyboard and pointer. The press that
    // finds that out is lost.
    {
        TargetWindow lock(0, 0, kWidth, kHeight);
        lock.openMenu();
        press();
        lock.events();
        press();
        EXPECT_THAT(lock.events(2), ElementsAre("key 38 down", "key 38 up"));
    }
    EXPECT_TRUE(waitForWindows(0));
    wait(1.2);
    target_.events();
    scan();
}

TEST_F(ScannerFaultsTest, NothingThatIsTypedIsKept) {
    use(quickSettings());
    const auto isOther = [](int key) {
        return key != kScanKey && key != kSecondKey && key != kEscape;
    };
    const auto logged = [] {
        std::ifstream log(AgentLog::path());
        return std::string(std::istreambuf_iterator<char>(log), {});
    };
    const std::string before = logged();
    EXPECT_THAT(before, HasSubstr("SAPr"));
    const auto type = [&] {
        std::size_t keys = 0;
        target_.events();
        for (int key = 10; key < 62; ++key)
            if (isOther(key))
                press(key, 0.001), ++keys;
        EXPECT_THAT(target_.events(2 * keys), testing::SizeIs(2 * keys));
    };
    type();
    begin();
    type();
    press(kEscape);
    EXPECT_EQ(logged(), before);
}

} // namespace
