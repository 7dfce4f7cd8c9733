// SPDX-License-Identifier: MIT
#include "src/commands/store.h"

#include "src/store/prefs.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/AgentTest.h"
#include "tests/support/OwnBus.h"

#include <thread>

namespace {

class StoreTest : public AgentTest<QCoreApplication> {
protected:
    OwnBus bus_;
};

/// Another command's value, in the stored file.
bool replaceStored(const fs::path& file, const std::string& from, const std::string& to) {
    std::string text = readFile(file);
    const std::size_t at = text.find(from);
    if (at == text.npos)
        return false;
    writeFile(file.string() + ".other", text.replace(at, from.size(), to));
    fs::rename(file.string() + ".other", file);
    return true;
}

TEST_F(StoreTest, WhatAnotherCommandStoresMeanwhileIsSentToo) {
    ASSERT_TRUE(registerCurrentProcess(fourCharCode("APPL"), fourCharCode("test")));
    startAgent();
    ASSERT_EQ(findProcess(fourCharCode("sprf")), kNoProcess);
    PrefsRecord record = currentSettings();
    record.soundLevel = 31;
    bus_.signal(SIGSTOP); // so that the command waits between storing and reading again
    std::thread other([this] {
        while (!replaceStored(storedFile(), "0x0000001f",
                              "0x0000001f</string>"
                              "<key>palette.borderGap</key><string>9"))
            std::this_thread::sleep_for(std::chrono::milliseconds(5));
        bus_.signal(SIGCONT);
    });
    SettingSet settings;
    settings[static_cast<std::size_t>(settingOfKey("soundLevel") - kSettings.data())] = true;
    EXPECT_EQ(changeSettings(settings, record), "");
    other.join();
    QJsonObject event = agentLog_.next();
    EXPECT_EQ(event["mask"].toInteger(), kChangeSounds);
    event = agentLog_.next();
    EXPECT_EQ(event["mask"].toInteger(), kChangePalette);
    EXPECT_EQ(recordField<SInt32>(event, offsetof(PrefsRecord, borderGap)), 9);
    EXPECT_EQ(recordField<UInt32>(event, offsetof(PrefsRecord, soundLevel)), 31u);
}

} // namespace
