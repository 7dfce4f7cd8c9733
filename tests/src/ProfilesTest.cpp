// SPDX-License-Identifier: MIT
#include "src/profiles.h"

#include "src/settingcheck.h"
#include "src/settingwords.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

const std::string kFolder = std::string(std::getenv("XDG_DATA_HOME")) + "/korvex/profiles";

const Setting& named(const char* key) {
    return *std::ranges::find_if(
        kSettings, [&](const Setting& row) { return std::strcmp(row.key, key) == 0; });
}

TEST(ProfilesTest, AProfileBringsBackAllButTheSwitchAndTheLogin) {
    PrefsRecord tired;
    tired.on = 0;
    tired.launchAtLogin = 0;
    tired.lineScanTime = 20;
    tired.hotKeys[1] = {-1, 0};
    EXPECT_EQ(saveProfile("Müde", tired), "");
    EXPECT_EQ(saveProfile("Morning", PrefsRecord()), "");
    setCurrentProfile("Müde");
    EXPECT_EQ(renameProfile("Müde", "Morning"), "there is a profile of that name");
    EXPECT_EQ(renameProfile("Müde", "Tired"), "");
    EXPECT_EQ(profileNames(), (std::vector<std::string>{"Morning", "Tired"}));
    EXPECT_EQ(currentProfile(), "Tired");

    const PrefsRecord factory;
    const SettingsOffer offer = readProfile("Tired", factory);
    EXPECT_EQ(offer.error, "");
    EXPECT_EQ(changesOf(differences(factory, offer.record)), kChangeScanSpeed | kChangeHotKeys);
    EXPECT_EQ(double{offer.record.lineScanTime}, 20);
    EXPECT_EQ(deleteProfile("Tired"), "");
    EXPECT_EQ(currentProfile(), "");
    EXPECT_NE(readProfile("Tired", factory).error, "");
    for (const char* bad : {"", ".hidden", "a/b", "../x", "a\nb"})
        EXPECT_NE(saveProfile(bad, factory), "") << bad;
}

TEST(ProfilesTest, OfAFileTheSoundSettingsAreOfferedAndTheOthersNamed) {
    fs::create_directories(kFolder);
    std::ofstream(kFolder + "/Mixed.plist")
        << "<plist><dict><key>scanner.lineScanTime</key><string>12.500000</string>"
           "<key>scanner.pointerScanTime</key><string>61</string>"
           "<key>scanner.scanMode</key><integer>3</integer>"
           "<key>scanner.lineThickness</key><string>thick</string>"
           "<key>scanner.interClickDelay</key><string>nan</string>"
           "<key>palette.buttonSize</key><string>(40,19)</string>"
           "<key>palette.buttonActions</key><string>[ 40]</string>"
           "<key>scanner.lineColor</key><string>[0x100,0x0,0x0]</string>"
           "<key>tomorrow</key><true/></dict></plist>";
    const SettingsOffer offer = readProfile("Mixed", PrefsRecord());
    EXPECT_EQ(differences(offer.record, PrefsRecord()).count(), 1u);
    EXPECT_EQ(double{offer.record.lineScanTime}, 12.5);
    std::string refused;
    for (const auto& [key, reason] : offer.refused)
        refused += key + ": " + reason + "\n";
    EXPECT_EQ(refused, "palette.buttonActions: an action that there isn't\n"
                       "palette.buttonSize: outside 20 to 100\n"
                       "scanner.interClickDelay: not a number\n"
                       "scanner.lineColor: outside 0 to 255\n"
                       "scanner.lineThickness: not a value of this setting\n"
                       "scanner.pointerScanTime: outside 1 to 60 seconds\n"
                       "scanner.scanMode: none of: 0 (Press to start, press to choose), "
                       "1 (Hold to scan, let go to choose), 2 (Each press moves one step)\n"
                       "tomorrow: no setting of this version\n");

    for (const std::string& text : {std::string("<plist><array/></plist>"), std::string("<pl"),
                                    std::string("<plist><dict><key>soundLevel</key><string>0x3"),
                                    std::string(10u << 20, 'x')}) {
        std::ofstream(kFolder + "/Mixed.plist") << text;
        EXPECT_NE(readProfile("Mixed", PrefsRecord()).error, "");
    }
}

const struct {
    const char* key;
    const char* words;
    const char* result; ///< the value's words, or the fault
} kWords[] = {
    {"scanner.lineScanTime", "12.5", "12.5 sec"},
    {"scanner.lineScanTime", "12.5 sec", "12.5 sec"},
    {"scanner.lineScanTime", "12,5", "12.5 sec"},
    {"scanner.lineScanTime", "nan", "outside 1 to 60 seconds"},
    {"scanner.menuScanSpeedScaleFactor", "65%", "65%"},
    {"scanner.menuScanSpeedScaleFactor", "65 points", "not a number in percent"},
    {"scanner.lineThickness", "9", "9 points"},
    {"scanner.scanMode", "2", "Each press moves one step"},
    {"scanner.triggerOnRelease", "when i let go", "When I let go"},
    {"playClickSounds", "Off", "off"},
    {"playClickSounds", "maybe", "not a value of this setting"},
    {"palette.buttonSize", "(60,50)", "60 × 50 points"},
};

TEST(ProfilesTest, ValuesAreTakenInPeoplesWords) {
    for (const auto& [key, words, result] : kWords) {
        PrefsRecord record;
        const std::string fault = setFromWords(named(key), words, record);
        EXPECT_EQ(fault.empty() ? settingText(named(key), record) : fault, result) << words;
        EXPECT_TRUE(fault.empty() || differences(record, PrefsRecord()).none()) << words;
    }
}

} // namespace
