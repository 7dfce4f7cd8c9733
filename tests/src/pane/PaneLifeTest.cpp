// SPDX-License-Identifier: MIT
#include "tests/support/PaneFixture.h"
#include "tests/support/SignalProcess.h"

#include <QRadioButton>

#include <unistd.h>

namespace {

/// The pane as the host opens it and puts it away, with the agent.
class PaneLifeTest : public PaneTest {
protected:
    static bool isStored(const std::string& key, const std::string& text) {
        const std::string item = "<key>" + key + "</key>\n\t<string>" + text + "</string>";
        return readFile(storedFile()).find(item) != std::string::npos;
    }

    static void signalAgent(int signal) { signalProcess(agentPID(), signal); }

    static long residentKilobytes() {
        std::ifstream file("/proc/self/statm");
        long total = 0, resident = 0;
        file >> total >> resident;
        return resident * sysconf(_SC_PAGESIZE) / 1024;
    }
};

TEST_F(PaneLifeTest, EveryVisitLoadsAnewAndStoresOnlyAChange) {
    openWithAgent();
    pane_->didUnselect();
    EXPECT_EQ(agentLog_.nextName(), "PPcl");
    EXPECT_FALSE(fs::exists(storedFile()));
    pane_->willSelect();
    EXPECT_EQ(agentLog_.nextName(), "PPop");
    click("canScanMenuBarCheck");
    EXPECT_EQ(agentLog_.nextMask(), 0);
    pane_->didUnselect();
    EXPECT_EQ(agentLog_.nextName(), "PPcl");
    EXPECT_TRUE(isStored("scanner.canScanMenuBar", "no"));
    EXPECT_TRUE(isStored("scanner.lineScanTime", "10.000000"));

    fs::last_write_time(storedFile(), fs::file_time_type());
    prefs = PrefsRecord();
    pane_->willSelect();
    EXPECT_EQ(agentLog_.nextName(), "PPop");
    EXPECT_FALSE(find<QAbstractButton>("canScanMenuBarCheck")->isChecked());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_EQ(fs::last_write_time(storedFile()), fs::file_time_type()) << "saved again";
}

TEST_F(PaneLifeTest, TheAgentsReportIsShownKeptAndNotSentBack) {
    openWithAgent();
    for (const bool on : {false, true, false}) {
        signalAgent(SIGUSR1);
        const auto* shown = find<QRadioButton>("masterOnOffRadios1");
        ASSERT_TRUE(QTest::qWaitFor([&] { return shown->isChecked() == on; }, 20'000));
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_TRUE(isStored("on", "no"));
}

TEST_F(PaneLifeTest, OpeningLaunchesTheAgentAndOptionClickQuitsAndLaunchesIt) {
    open();
    EXPECT_EQ(agentLog_.nextName(), "PPop") << "as soon as it is there";
    click("masterOnOffRadios0");
    EXPECT_EQ(agentLog_.nextMask(), kChangeOnOff);
    click("masterOnOffRadios0"); // no change
    click("masterOnOffRadios0", Qt::AltModifier);
    EXPECT_EQ(agentLog_.nextName(), "quit");
    waitForNoAgent();
    click("lineScanTimeIncBtn"); // off: nobody to tell, and nobody to launch
    click("masterOnOffRadios1");
    const ChangeMask missed = kChangeOnOff | kChangeForceOnOff | kChangeScanSpeed;
    EXPECT_EQ(agentLog_.nextMask(), missed) << "as soon as it is there";

    signalAgent(SIGSTOP);
    const pid_t agent = agentPID();
    for (const char* button : {"masterOnOffRadios0", "masterOnOffRadios1"})
        click(button, Qt::AltModifier);
    signalAgent(SIGCONT);
    EXPECT_EQ(agentLog_.nextName(), "quit");
    ASSERT_TRUE(QTest::qWaitFor([=] { return agentPID() != 0 && agentPID() != agent; }, 20'000));
    QJsonObject event = agentLog_.next();
    if (event["mask"].toInteger() == (kChangeOnOff | kChangeForceOnOff))
        event = agentLog_.next(); // the old one could still take it
    EXPECT_EQ(event["mask"].toInteger(), missed);
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
}

TEST_F(PaneLifeTest, AnAgentThatDiesOrHangsLosesNothing) {
    openWithAgent();
    signalAgent(SIGSTOP);
    for (int i = 0; i < 6; ++i)
        click("lineScanTimeIncBtn");
    signalAgent(SIGKILL);
    waitForNoAgent();
    click("volumeDecBtn");
    waitForAgent(); // the master switch is on, so a change brings it up again
    click("volumeDecBtn");
    EXPECT_EQ(agentLog_.nextMask(), kChangeScanSpeed | kChangeSounds);
    const QJsonObject event = agentLog_.next();
    EXPECT_EQ(event["mask"].toInteger(), kChangeSounds);
    EXPECT_EQ(recordField<double>(event, offsetof(PrefsRecord, lineScanTime)), 13.0);
    EXPECT_EQ(recordField<UInt32>(event, offsetof(PrefsRecord, soundLevel)), 48u);
    putAway();
    EXPECT_TRUE(isStored("scanner.lineScanTime", "13.000000"));
    EXPECT_TRUE(isStored("soundLevel", "0x00000030"));
}

TEST_F(PaneLifeTest, AHundredVisitsLeaveNothingBehind) {
    openWithAgent();
    pane_->didUnselect();
    long files = 0, memory = 0;
    for (int i = 0; i < 100; ++i) {
        if (i == 3) { // everything was made once
            files = countOpenFiles();
            memory = residentKilobytes();
        }
        pane_->willSelect();
        find("paletteView")->repaint();
        pane_->didUnselect();
        QCoreApplication::processEvents();
    }
    EXPECT_EQ(countOpenFiles(), files);
#if !defined(__SANITIZE_ADDRESS__) // which keeps freed memory
    EXPECT_LT(residentKilobytes() - memory, 1024);
#endif
    pane_->willSelect();
}

} // namespace
