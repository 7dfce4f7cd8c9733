#include "src/prefs.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <cstdint>
#include <cstring>
#include <gmock/gmock.h>
#include <map>

namespace fs = std::filesystem;

namespace {

/// What a save of the factory record stores, every key of it.
const std::map<std::string, std::string> kFactoryTexts = {
    {"on", "yes"},
    {"playClickSounds", "yes"},
    {"playDragPrompts", "yes"},
    {"priorityScheduling", "no"},
    {"launchAtLogin", "yes"},
    {"activateAtLaunch", "yes"},
    {"soundLevel", "0x00000032"},
    {"scanner.canScanMenuBar", "yes"},
    {"scanner.minTriggerDuration", "0.000000"},
    {"scanner.afterClickDelay", "0.000000"},
    {"scanner.preScanDelay", "1.500000"},
    {"scanner.inverseReleaseTime", "2.000000"},
    {"scanner.stepScanCancelTime", "10.000000"},
    {"scanner.wantHotKeyTrigger", "yes"},
    {"scanner.wantMouseClickTrigger", "yes"},
    {"scanner.triggerOnRelease", "no"},
    {"scanner.fakeMouse2SwitchMode", "yes"},
    {"scanner.scanMode", "0"},
    {"scanner.scanArea", "origin(0.000000,0.000000); size(0.000000,0.000000)"},
    {"scanner.useScanArea", "no"},
    {"scanner.lineScanCanEndKybdMode", "yes"},
    {"scanner.lineScanTime", "10.000000"},
    {"scanner.pointerScanTime", "10.000000"},
    {"scanner.menuScanSpeedScaleFactor", "60.000000"},
    {"scanner.useScanAcceleration", "yes"},
    {"scanner.autoRepeatTime", "4.000000"},
    {"scanner.clickDuration", "70.000000"},
    {"scanner.interClickDelay", "10.000000"},
    {"scanner.lineColor", "[0x0064,0x0000,0x0000]"},
    {"scanner.lineThickness", "7"},
    {"scanner.lineTransparency", "5.000000"},
    {"scanner.lineGhostTransparency", "75.000000"},
    {"scanner.pointerImageName", "default"},
    {"hotkeys.keys", "[ {0x7,0x1200} {0x4c,0x100} {0x35,0x0} {0x7,0x1a00} {0x4c,0x800}]"},
    {"palette.borderGap", "4"},
    {"palette.buttonGap", "6"},
    {"palette.buttonSize", "(40,40)"},
    {"palette.buttonShape", "0x00000000"},
    {"palette.buttonContent", "0x00000003"},
    {"palette.buttonActions", "[ 20 21 22 1 2 0 0 0 0]"},
};

fs::path domainFile() {
    return fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences" /
           (std::string(kAgentBundleIDText) + ".plist");
}

/// The stored domain's keys and texts; what isn't a text shows as "?".
std::map<std::string, std::string> storedTexts() {
    const std::string bytes = readFile(domainFile());
    const auto root = CFPropertyListCreateFromXMLData(
        CFDataCreate(reinterpret_cast<const UInt8*>(bytes.data()), std::ssize(bytes)).get());
    std::map<std::string, std::string> texts;
    if (const auto* dictionary = dynamicCFCast<CFDictionary>(root.get()))
        for (const auto& [key, value] : dictionary->items()) {
            const auto* text = dynamicCFCast<CFString>(value.get());
            texts[CFStringToUTF8(CFRef<CFString>::adopt(new CFString(key)).get())] =
                text ? CFStringToUTF8(text) : "?";
        }
    return texts;
}

void setText(const char* key, const std::string& text) {
    CFPreferencesSetAppValue(CFSTR(key), CFStringCreateWithUTF8(text).get(), kAgentBundleID);
}

/// The part of the record from `offset` on as hexadecimal digits.
std::string recordBytes(std::size_t offset, std::size_t size) {
    std::string digits;
    char pair[3];
    for (std::size_t i = offset; i < offset + size; ++i) {
        std::snprintf(pair, sizeof pair, "%02x", reinterpret_cast<const UInt8*>(&prefs)[i]);
        digits += pair;
    }
    return digits;
}

TEST(PrefsTest, FactoryRecordHasTheAgentsByteImage) {
    EXPECT_EQ(recordBytes(0, sizeof prefs),
              "0101010100010100" // flags
              "32000000"         // sound level
              "01000000"
              "0000000000000000" // trigger times: 0, 0, 1.5, 2, 10
              "0000000000000000"
              "000000000000f83f"
              "0000000000000040"
              "0000000000002440"
              "01010001"
              "00000000"                         // scan mode
              "00000000000000000000000000000000" // scan area
              "00010000"
              "0000000000002440" // scan times: 10, 10, 60 %
              "0000000000002440"
              "0000000000004e40"
              "01000000"
              "0000000000001040" // repeat and click: 4, 70, 10
              "0000000000805140"
              "0000000000002440"
              "6400000000000000" // line: colour, thickness, transparencies
              "07000000"
              "0000000000001440"
              "0000000000c05240"
              "64656661756c7400" // "default"
                  + std::string(2 * 92, '0') +
                  "0700000000120000" // hot keys
                  "4c00000000010000"
                  "3500000000000000"
                  "07000000001a0000"
                  "4c00000000080000"
                  "0400000006000000" // palette
                  "2800280000000000"
                  "03000000"
                  "141516010200000000000000"
                  "20b05eda");
}

TEST(PrefsTest, SavingAFreshRecordStoresEveryKeyInItsForm) {
    prefsSetup();
    ASSERT_TRUE(savePrefs());
    EXPECT_EQ(storedTexts(), kFactoryTexts);
}

TEST(PrefsTest, WhatIsSavedIsLoadedAgain) {
    PrefsRecord other;
    other.on = other.playClickSounds = other.activateAtLaunch = 0;
    other.priorityScheduling = other.triggerOnRelease = other.useScanArea = 1;
    other.soundLevel = 0xFFFFFFFE;
    other.scanMode = 2;
    other.scanArea = {-1280.5f, -1024, 640.25f, 480};
    other.minTriggerDuration = 0.1;
    other.lineScanTime = 59.999999;
    other.menuScanSpeedScaleFactor = 1e300;
    other.interClickDelay = -3;
    other.lineColor = {0, 255, 0xFFFF};
    other.lineThickness = -2147483647 - 1;
    std::strcpy(other.pointerImageName, "Fl\x8f"
                                        "che\xa5"); // è and • in Mac OS Roman
    other.hotKeys[0] = {-1, 0};
    other.hotKeys[4] = {0x7F, 0x1B00};
    other.buttonSize = {.height = -32768, .width = 32767};
    other.buttonShape = 1;
    const UInt8 actions[] = {39, 0, 255, 1, 2, 3, 4, 5, 6};
    std::memcpy(other.buttonActions, actions, sizeof actions);
    prefs = other;
    ASSERT_TRUE(savePrefs());
    EXPECT_THAT(storedTexts(),
                testing::Contains(testing::Pair("scanner.pointerImageName", "Fl\u00e8che\u2022")));
    EXPECT_THAT(storedTexts(),
                testing::Contains(testing::Pair(
                    "hotkeys.keys",
                    "[ {0xffffffff,0x0} {0x4c,0x100} {0x35,0x0} {0x7,0x1a00} {0x7f,0x1b00}]")));

    prefs = PrefsRecord();
    prefsSetup();
    EXPECT_EQ(recordBytes(0, sizeof prefs), [&] {
        prefs = other;
        return recordBytes(0, sizeof prefs);
    }());
}

struct TextCase {
    const char* key;
    std::string text;
    std::size_t offset;
    std::string bytes; ///< the field's after loading, hexadecimal; empty: the factory's
};

#define AT(field) offsetof(PrefsRecord, field)

const TextCase kTextCases[] = {
    {"on", "No", AT(on), "00"},
    {"on", "off", AT(on), ""},
    {"on", "0", AT(on), ""},
    {"scanner.scanMode", "-1", AT(scanMode), "ffffffff"},
    {"scanner.scanMode", "1.5", AT(scanMode), ""},
    {"scanner.scanMode", " 1", AT(scanMode), ""},
    {"soundLevel", "0x64", AT(soundLevel), "64000000"},
    {"soundLevel", "50", AT(soundLevel), ""},
    {"soundLevel", "", AT(soundLevel), ""},
    {"soundLevel", "0x" + std::string(60, '0') + "5", AT(soundLevel), "05000000"},
    {"soundLevel", "0x" + std::string(61, '0') + "5", AT(soundLevel), ""},
    {"scanner.preScanDelay", "2", AT(preScanDelay), "0000000000000040"},
    {"scanner.preScanDelay", "2,5 s", AT(preScanDelay), "0000000000000040"},
    {"scanner.preScanDelay", "fast", AT(preScanDelay), ""},
    {"scanner.scanArea", "origin(1,2); size(3,4)", AT(scanArea),
     "0000803f000000400000404000008040"},
    {"scanner.scanArea", "origin(1,2); size(3)", AT(scanArea), ""},
    {"scanner.scanArea", "1 2 3 4", AT(scanArea), ""},
    {"scanner.lineColor", "[0xff,0x80,0x0]", AT(lineColor), "ff0080000000"},
    {"scanner.lineColor", "[0x1ff80,0x80,0x0]", AT(lineColor), "80ff80000000"},
    {"scanner.lineColor", "[0xff,0x80]", AT(lineColor), ""},
    {"palette.buttonSize", "(50,30)", AT(buttonSize), "1e003200"},
    {"palette.buttonSize", "(70000,40)", AT(buttonSize), ""},
    {"palette.buttonSize", "(40,-32769)", AT(buttonSize), ""},
    {"palette.buttonSize", "(40)", AT(buttonSize), ""},
    {"palette.buttonActions", "[ 5 6]", AT(buttonActions), "0506160102"},
    {"palette.buttonActions", "[ 300]", AT(buttonActions), "2c15"},
    {"palette.buttonActions", "[ 4294967296]", AT(buttonActions), "0015"},
    {"palette.buttonActions", "[ 5  6]", AT(buttonActions), "0515"},
    {"palette.buttonActions", "[ 1 2 3 4 5 6 7 8 9 10]", AT(buttonActions),
     "010203040506070809000000"},
    {"palette.buttonActions", "[", AT(buttonActions), ""},
    {"palette.buttonActions", " 5 6]", AT(buttonActions), ""},
    {"hotkeys.keys", "[ {0x1,0x100}]", AT(hotKeys), "01000000000100004c000000"},
    {"hotkeys.keys", "[ {1,2} {0x2,0x200}", AT(hotKeys), "07000000001200000200000000020000"},
    {"hotkeys.keys", "[ {0x1,0x100}", AT(hotKeys), "01000000000100004c000000"},
    {"hotkeys.keys", "[ {0x1,0x100", AT(hotKeys), "01000000000100004c000000"},
    {"hotkeys.keys", "{0x1,0x100}]", AT(hotKeys), ""},
    {"hotkeys.keys", "[", AT(hotKeys), ""},
    {"scanner.pointerImageName", std::string(98, 'a'), AT(pointerImageName), "6161"},
    {"scanner.pointerImageName", std::string(99, 'a'), AT(pointerImageName), "00"},
    {"scanner.pointerImageName", "\u4e2d", AT(pointerImageName), "00"},
};
#undef AT

TEST(PrefsTest, TextsThatDontParseLeaveTheirFields) {
    const PrefsRecord factory;
    for (const TextCase& test : kTextCases) {
        prefs = factory;
        setText(test.key, test.text);
        prefsSetup();
        const std::size_t size = test.bytes.empty() ? 8 : test.bytes.size() / 2;
        const std::string loaded = recordBytes(test.offset, size);
        prefs = factory;
        const std::string expected =
            test.bytes.empty() ? recordBytes(test.offset, size) : test.bytes;
        EXPECT_EQ(loaded, expected) << test.key << " = " << test.text;
        CFPreferencesSetAppValue(CFSTR(test.key), nullptr, kAgentBundleID);
    }
}

TEST(PrefsTest, ValuesOfOtherTypesLeaveTextFields) {
    std::string body;
    for (const auto& [key, text] : kFactoryTexts)
        if (text != "yes" && text != "no" && key != "scanner.scanMode")
            body += "<key>" + key + "</key><array><string>" + text + "1</string></array>";
    writeFile(domainFile(), dictionaryFile(body + "<key>on</key><false/>"
                                                  "<key>scanner.scanMode</key><real>2.9</real>"));
    PrefsRecord expected;
    expected.on = 0;
    expected.scanMode = 2;
    prefsSetup();
    EXPECT_EQ(std::memcmp(&prefs, &expected, sizeof prefs), 0);
}

TEST(PrefsTest, OnlyAChangeIsSavedAndOnlyOnce) {
    prefsSetup();
    prefsCleanup();
    EXPECT_FALSE(fs::exists(domainFile())) << "nothing was changed";

    prefsWereChanged();
    prefsFlushChanges();
    ASSERT_EQ(storedTexts(), kFactoryTexts);
    fs::remove(domainFile());
    prefsFlushChanges();
    prefsWereChanged();
    prefsWerentChanged();
    prefsCleanup();
    EXPECT_FALSE(fs::exists(domainFile())) << "it was saved already";
}

TEST(PrefsTest, UnsignedValuesAreSeenAtOnceAndSavedByTheNextFlush) {
    const auto* key = CFSTR("axreq.lastShown");
    EXPECT_EQ(prefsGetUnsignedValue(key), 0u);
    setText("axreq.lastShown", "42");
    EXPECT_EQ(prefsGetUnsignedValue(key), 0u);
    prefsSetUnsignedValue(key, 42);
    EXPECT_EQ(prefsGetUnsignedValue(key), 42u);
    EXPECT_FALSE(fs::exists(domainFile()));
    prefsCleanup();
    auto expected = kFactoryTexts;
    expected["axreq.lastShown"] = "0x0000002a";
    EXPECT_EQ(storedTexts(), expected);
}

TEST(PrefsTest, TextsGoIntoTheBufferWholeOrNotAtAll) {
    char buffer[8] = "before";
    EXPECT_FALSE(getPrefStr(CFSTR("absent"), buffer, sizeof buffer));
    EXPECT_STREQ(buffer, "before");
    setText("text", "1234567");
    EXPECT_TRUE(getPrefStr(CFSTR("text"), buffer, sizeof buffer));
    EXPECT_STREQ(buffer, "1234567");
    for (const char* text : {"12345678", "\u4e2d"}) {
        setText("text", text);
        EXPECT_FALSE(getPrefStr(CFSTR("text"), buffer, sizeof buffer));
        EXPECT_STREQ(buffer, "");
    }
    setText("text", "kept");
    setPrefDouble(CFSTR("text"), 1e300); // longer than any reader takes
    EXPECT_TRUE(getPrefStr(CFSTR("text"), buffer, sizeof buffer));
    EXPECT_STREQ(buffer, "kept");
}

} // namespace
