// SPDX-License-Identifier: MIT
#include "src/store/profiles.h"

#include "src/record/settingcheck.h"
#include "src/record/settingwords.h"
#include "src/store/prefs.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <barrier>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

const std::string kFolder = std::string(std::getenv("XDG_DATA_HOME")) + "/korvex/profiles";

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
    for (const char* bad :
         {"", ".hidden", "a/b", "../x", "a\nb", "a\u202Eb", "\u200B", " ", "a ", "\xFF"})
        EXPECT_NE(saveProfile(bad, factory), "") << bad;
}

TEST(ProfilesTest, OfTwoRenamesToOneNameOneIsRefused) {
    for (int round = 0; round < 100; ++round) {
        for (const char* name : {"One", "Two"})
            ASSERT_EQ(saveProfile(name, PrefsRecord()), "");
        std::barrier start(2);
        std::string faults[2];
        const auto rename = [&](const char* name, std::string& fault) {
            start.arrive_and_wait();
            fault = renameProfile(name, "Both");
        };
        std::thread other([&] { rename("One", faults[0]); });
        rename("Two", faults[1]);
        other.join();
        EXPECT_EQ(faults[0] + faults[1], "there is a profile of that name");
        ASSERT_EQ(profileNames().size(), 2u);
        for (const std::string& name : profileNames())
            deleteProfile(name);
    }
}

TEST(ProfilesTest, TheNoteOfTheOneInUseSurvivesACrashAndIsReadWithCare) {
    const std::string note = std::string(std::getenv("XDG_STATE_HOME")) + "/korvex/profile";
    ASSERT_EQ(saveProfile("Tired", PrefsRecord()), "");
    for (const char* cut : {"Tired\nRested\n", "Exhausted\nTired\n"}) { // before and after it
        writeFile(note, cut);
        EXPECT_EQ(currentProfile(), "Tired");
        EXPECT_EQ(readFile(note), "Tired\n");
    }
    fs::resize_file(note, std::uintmax_t{1} << 40);
    EXPECT_EQ(currentProfile(), "");
    EXPECT_EQ(profilesFault(), note + ": File too large");
    fs::remove(note);
    ASSERT_EQ(mkfifo(note.c_str(), 0600), 0);
    EXPECT_EQ(currentProfile(), "");
    EXPECT_EQ(profilesFault(), note + ": Operation not supported");
    EXPECT_EQ(setCurrentProfile("Tired"), note + ": Operation not supported");
    fs::remove(note);
}

TEST(ProfilesTest, AProfileIsItsUsersAloneAndNeverSaidToBeSavedWhenItIsNot) {
    const std::string path = kFolder + "/Mine.plist";
    umask(0);
    ASSERT_EQ(saveProfile("Mine", PrefsRecord()), "");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    fs::remove(path);
    writeFile(path + "/in the way", "");
    EXPECT_EQ(saveProfile("Mine", PrefsRecord()), "Is a directory");
    fs::remove_all(path);
    if (geteuid() != 0)
        GTEST_SKIP() << "only root can make a link that is another user's";
    const std::string target = makeSandboxFolder("target") / "file";
    writeFile(target, "precious");
    fs::create_symlink(target, path);
    ASSERT_EQ(lchown(path.c_str(), 65534, 65534), 0);
    EXPECT_EQ(saveProfile("Mine", PrefsRecord()), "Permission denied");
    EXPECT_EQ(readFile(target), "precious");
    fs::remove(path);
}

TEST(ProfilesTest, OfAFileTheSoundSettingsAreOfferedAndTheOthersNamed) {
    const char kNotAValue[] = "not a value of this setting";

    const struct {
        const char* key;
        const char* value;
        const char* reason; ///< why it is left out
    } cases[] = {
        {"palette.borderGap", "<string>thick</string>", kNotAValue},
        {"palette.buttonActions", "<string>[ 20 21 22 1 2 40 0 0 0]</string>",
         "an action that there isn't"},
        {"palette.buttonContent", "<string>0x4</string>", "outside 0 to 3"},
        {"palette.buttonSize", "<string>(40,19)</string>", "outside 20 to 100 points"},
        {"playClickSounds", "<array/>", kNotAValue},
        {"scanner.interClickDelay", "<string>nan</string>", "not a number"},
        {"scanner.lineColor", "<string>[0x100,0x0,0x0]</string>", "outside 0 to 255"},
        {"scanner.lineThickness", "<dict/>", kNotAValue},
        {"scanner.pointerScanTime", "<string>61</string>", "outside 1 to 60 seconds"},
        {"scanner.scanArea", "<string>origin(0,0); size(nan,9)</string>", kNotAValue},
        {"scanner.scanMode", "<integer>3</integer>",
         "none of: 0 (Press to start, press to choose), 1 (Hold to scan, let go to choose), 2 "
         "(Each "
         "press moves one step)"},
        {"scanner.useScanArea", "<true/>", "there is no area of your own yet"},
        {"soundLevel", "<real>3</real>", kNotAValue},
        {"to\u2028morrow", "<true/>", "no setting of this version"},
    };

    std::string list = "<key>scanner.lineScanTime</key><string>12.500000</string>", refused, named;
    for (const auto& [key, value, reason] : cases) {
        list += "<key>" + std::string(key) + "</key>" + value;
        refused += std::string(key) + ": " + reason + "\n";
    }
    writeFile(kFolder + "/Mixed.plist", dictionaryFile(list));
    const SettingsOffer offer = readProfile("Mixed", PrefsRecord());
    EXPECT_EQ(differences(offer.record, PrefsRecord()).count(), 1u);
    EXPECT_EQ(double{offer.record.lineScanTime}, 12.5);
    for (const auto& [key, reason] : offer.refused)
        named += key + ": " + reason + "\n";
    EXPECT_EQ(named, refused.replace(refused.find("\u2028"), 3, "\uFFFD"));

    // Of a list all entries, and no more.
    for (const char* actions :
         {"[ 20 21]", "[ 20 21 22 1 2 0 0 0 0 5]", "[ 276 21 22 1 2 0 0 0 0]"})
        EXPECT_TRUE(setFromWords(*settingOfKey("palette.buttonActions"), actions, prefs)
                        .starts_with(kNotAValue));

    const std::string truncated = "<plist><dict><key>soundLevel</key><string>0x3";
    const std::string damaged = "damaged, or no file of settings";
    mkfifo((kFolder + "/Pipe.plist").c_str(), 0600);
    EXPECT_EQ(readProfile("Pipe", PrefsRecord()).error, damaged);
    for (const auto& [content, error] :
         {std::pair(std::string("<plist><array/></plist>"), damaged),
          {truncated, damaged},
          {"", damaged},
          {truncated + "</string></dict></plist><plist/>", damaged},
          {truncated + std::string(10U << 20, ' ') + "</string></dict></plist>",
           "larger than a file of settings can be"}}) {
        writeFile(kFolder + "/Mixed.plist", content);
        EXPECT_EQ(readProfile("Mixed", PrefsRecord()).error, error);
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
    {"scanner.lineScanTime", "60", "60.0 sec"},
    {"scanner.lineScanTime", "nan", "outside 1 to 60 seconds"},
    {"scanner.menuScanSpeedScaleFactor", "65%", "65%"},
    {"scanner.menuScanSpeedScaleFactor", "65 points", "not a number in percent"},
    {"scanner.lineThickness", "9", "9 points"},
    {"scanner.scanMode", "2", "Each press moves one step"},
    {"scanner.triggerOnRelease", "when i let go", "When I let go"},
    {"playClickSounds", "Off", "off"},
    {"playClickSounds", "maybe", "neither on nor off"},
    {"palette.buttonSize", "(60,50)", "60 × 50 points"},
    {"soundLevel", "50.5", "not a whole number"},
    {"on", "1", "on"},
    {"palette.buttonContent", "3", "icon and name"},
    {"palette.buttonContent", "Name", "name"},
    {"scanner.lineColor", "#640000", "Red (#640000)"},
    {"scanner.lineColor", "#64000g", "not a value of this setting; for example #640000"},
    {"palette.buttonSize", "60", "not a value of this setting; for example (40,40)"},
};

TEST(ProfilesTest, ValuesAreTakenInPeoplesWords) {
    for (const auto& [key, words, result] : kWords) {
        PrefsRecord record;
        const std::string fault = setFromWords(*settingOfKey(key), words, record);
        EXPECT_EQ(fault.empty() ? settingText(*settingOfKey(key), record) : fault, result) << words;
        EXPECT_TRUE(fault.empty() || differences(record, PrefsRecord()).none()) << words;
    }
}

} // namespace
