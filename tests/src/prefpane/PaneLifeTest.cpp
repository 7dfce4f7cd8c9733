#include "tests/support/PaneFixture.h"

#include <QRadioButton>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace fs = std::filesystem;

namespace {

/// The pane as the host opens it and puts it away, and the agent beside it.
class PaneLifeTest : public PaneTest {
protected:
    static fs::path domainFile() {
        return fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences" /
               (std::string(kAgentBundleIDText) + ".plist");
    }

    static bool isStored(const std::string& key, const std::string& text) {
        std::ifstream file(domainFile());
        const std::string all{std::istreambuf_iterator<char>(file), {}};
        const auto at = all.find("<key>" + key + "</key>");
        const auto value = all.find("<string>" + text + "</string>", at);
        return at != std::string::npos && value < all.find("<key>", at + 1);
    }

    void signalAgent(int signal) {
        ProcessSerialNumber agent = findAgent();
        pid_t pid = 0;
        ASSERT_EQ(GetProcessPID(&agent, &pid), noErr);
        kill(pid, signal);
    }

    /// Shows the pane with every button of the palette drawn, and puts it away.
    void visit() {
        pane_->willSelect();
        find("paletteView")->repaint();
        pane_->didUnselect();
        QCoreApplication::processEvents();
    }

    static long openFiles() {
        return std::distance(fs::directory_iterator("/proc/self/fd"), fs::directory_iterator());
    }

    static long residentKilobytes() {
        std::ifstream file("/proc/self/statm");
        long total = 0, resident = 0;
        file >> total >> resident;
        return resident * sysconf(_SC_PAGESIZE) / 1024;
    }

    bool showsOn() { return find<QRadioButton>("masterOnOffRadios1")->isChecked(); }
};

TEST_F(PaneLifeTest, AVisitWithoutAChangeSendsAndStoresNothing) {
    openWithAgent();
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_FALSE(fs::exists(domainFile()));
}

TEST_F(PaneLifeTest, LaunchesAnAgentThatIsntRunningAndTalksToItThen) {
    open();
    waitForAgent();
    click("lineScanTimeIncBtn");
    EXPECT_EQ(agentLog_.next()["mask"].toInteger(), kChangeScanSpeed);
}

TEST_F(PaneLifeTest, EveryVisitLoadsAnewAndStoresItsChange) {
    openWithAgent();
    click("canScanMenuBarCheck");
    EXPECT_EQ(agentLog_.next()["mask"].toInteger(), 0);
    pane_->didUnselect();
    EXPECT_EQ(agentLog_.nextName(), "PPcl");
    EXPECT_TRUE(isStored("scanner.canScanMenuBar", "no"));
    EXPECT_TRUE(isStored("scanner.lineScanTime", "10.000000"));

    fs::last_write_time(domainFile(), fs::file_time_type());
    prefs = PrefsRecord();
    pane_->willSelect();
    EXPECT_EQ(agentLog_.nextName(), "PPop");
    EXPECT_EQ(prefs.canScanMenuBar, 0);
    EXPECT_FALSE(find<QAbstractButton>("canScanMenuBarCheck")->isChecked());
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_EQ(fs::last_write_time(domainFile()), fs::file_time_type()) << "saved again";
}

TEST_F(PaneLifeTest, TheAgentsReportIsShownKeptAndNotSentBack) {
    openWithAgent();
    for (const bool on : {false, true, false}) {
        signalAgent(SIGUSR1);
        ASSERT_TRUE(QTest::qWaitFor([&] { return showsOn() == on; }, 5000));
        EXPECT_EQ(prefs.on, on);
    }
    EXPECT_THAT(remainingMasks(), testing::IsEmpty());
    EXPECT_TRUE(isStored("on", "no"));
}

TEST_F(PaneLifeTest, OptionClickQuitsTheAgentAndLaunchesIt) {
    openWithAgent();
    click("masterOnOffRadios0");
    EXPECT_EQ(agentLog_.next()["mask"].toInteger(), kChangeOnOff);
    click("masterOnOffRadios0"); // no change
    click("masterOnOffRadios0", Qt::AltModifier);
    EXPECT_EQ(agentLog_.nextName(), "quit");
    waitForNoAgent();
    click("lineScanTimeIncBtn"); // off: nobody to tell, and nobody to launch
    click("masterOnOffRadios1");
    waitForAgent();
    click("masterOnOffRadios1", Qt::AltModifier);
    EXPECT_EQ(agentLog_.next()["mask"].toInteger(), kChangeOnOff | kChangeForceOnOff);
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
    for (int i = 0; i < 3; ++i)
        visit();
    const long files = openFiles();
    const long memory = residentKilobytes();
    for (int i = 0; i < 97; ++i)
        visit();
    EXPECT_EQ(openFiles(), files);
#if !defined(__SANITIZE_ADDRESS__) // which keeps freed memory
    EXPECT_LT(residentKilobytes() - memory, 1024);
#endif
    pane_->willSelect();
}

} // namespace
