// SPDX-License-Identifier: MIT
#include "src/store/recovery.h"

#include "platform/CoreServices/StateFile.h"
#include "src/store/prefs.h"
#include "src/store/settingsfile.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <csignal>
#include <functional>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace {

class RecoveryTest : public testing::Test {
protected:
    RecoveryTest() { setenv("XDG_STATE_HOME", state_.c_str(), 1); }

    long countFiles() const {
        std::error_code error;
        const fs::directory_iterator files(state_ / "korvex", error);
        return std::count_if(begin(files), end(files), [](const auto& file) {
            return file.path().string().find(".new") == std::string::npos; // still being written
        });
    }

    void waitForFiles(long count) const {
        for (int i = 0; i < 500 && countFiles() != count; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        ASSERT_EQ(countFiles(), count);
    }

    /// A program that changes settings and is killed.
    void crash(const std::function<void(PrefsRecord& record)>& change) const {
        const long before = countFiles();
        const pid_t child = fork();
        if (child == 0) {
            PrefsRecord record;
            change(record);
            const SettingSet changed = differences(record, PrefsRecord());
            record.soundLevel = 3;
            recoveryKeep(record, changed, PrefsRecord());
            pause();
        }
        waitForFiles(before + 1);
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
    }

    fs::path state_ = makeSandboxFolder("state");
};

TEST_F(RecoveryTest, TakesOverWhatCrashedProgramsChangedTheLatestLast) {
    crash([](auto& record) { record.lineScanTime = 20; });
    crash([](auto& record) { record.lineScanTime = 30; });
    writeFile(state_ / "korvex/unsaved.1.2.damaged", "<plist>");
    writeFile(state_ / "korvex/unsaved.1.2", "damaged");

    PrefsRecord record;
    record.soundLevel = 9;
    const SettingSet recovered = recoveryTakeOver(record);
    EXPECT_EQ(recovered.count(), 1u);
    EXPECT_EQ(changesOf(recovered), kChangeScanSpeed);
    EXPECT_EQ(double{record.lineScanTime}, 30);
    EXPECT_EQ(record.soundLevel, 9u);

    EXPECT_EQ(countFiles(), 4) << "kept until there is an own file";
    recoveryKeep(record, recovered, PrefsRecord());
    waitForFiles(3);
    PrefsRecord again;
    EXPECT_TRUE(recoveryTakeOver(again).none()) << "a file of a living process";
    recoveryForget();
    waitForFiles(2);
}

TEST_F(RecoveryTest, WhatWasStoredAfterwardsStaysAndAnOddListIsTaken) {
    setenv("XDG_CONFIG_HOME", makeSandboxFolder("config").c_str(), 1);
    const fs::path store = fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences" /
                           (std::string(kAgentBundleIDText) + ".plist");
    writeFile(store, "");
    crash([](auto& record) {
        record.lineScanTime = 20;
        record.lineThickness = 9;
        record.buttonActions[0] = 5;
        record.buttonActions[1] = 200; // as somebody else stored it
    });
    for (const bool isLater : {false, true}) {
        fs::last_write_time(store, fs::file_time_type::clock::now() +
                                       std::chrono::hours(isLater ? 1 : -1));
        PrefsRecord record;
        record.lineScanTime = 15; // stored by a command, when it was 10
        recoveryTakeOver(record);
        EXPECT_EQ(double{record.lineScanTime}, isLater ? 15 : 20);
        EXPECT_EQ(record.lineThickness, 9) << "nobody else changed it";
        EXPECT_EQ(record.buttonActions[0], 5);
        EXPECT_EQ(record.buttonActions[1], 200);
    }
    PrefsRecord record;
    record.lineThickness = 8;
    recoveryYield(differences(record, PrefsRecord()));
    record.lineThickness = 7;
    record.lineScanTime = 15;
    recoveryTakeOver(record);
    EXPECT_EQ(record.lineThickness, 7) << "chosen meanwhile as it is stored";
    EXPECT_EQ(double{record.lineScanTime}, 15);
    EXPECT_EQ(record.buttonActions[0], 5);
}

TEST_F(RecoveryTest, AnotherProcessOfTheSameNumberIsntTheOwner) {
    PrefsRecord record;
    record.lineScanTime = 40;
    writeFile(state_ / "korvex" / ("unsaved." + std::to_string(getpid()) + ".1"),
              settingsDocument(differences(record, PrefsRecord()), record));
    PrefsRecord later;
    recoveryTakeOver(later);
    EXPECT_EQ(double{later.lineScanTime}, 40);
}

TEST_F(RecoveryTest, AFolderThatCannotBeWrittenIsTroubleUntilTheChangesAreSaved) {
    writeFile(state_ / "korvex", "in the way");
    recoveryKeep(PrefsRecord(), {}, PrefsRecord());
    for (int i = 0; i < 500 && stateFileOutcome().trouble == FileTrouble::None; ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(stateFileOutcome().trouble, FileTrouble::InTheWay);
    recoveryForget();
    EXPECT_EQ(stateFileOutcome().trouble, FileTrouble::None);
}

} // namespace
