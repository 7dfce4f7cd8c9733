// SPDX-License-Identifier: MIT
#include "src/store/prefs.h"

#include "platform/CoreFoundation/CFPreferences.h"
#include "src/record/settings.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <QByteArray>
#include <QRegularExpression>
#include <QStringList>

#include <clocale>
#include <cstring>
#include <map>
#include <regex>
#include <sstream>

namespace {

const fs::path kDomainFile =
    fs::path(std::getenv("XDG_CONFIG_HOME")) / "Preferences/org.korvex.Agent.plist";

using Texts = std::map<std::string, std::string>;

/// The stored texts, by key.
Texts storedTexts() {
    const std::string file = readFile(kDomainFile);
    const std::regex item("<key>([^<]*)</key>\\s*<string>([^<]*)</string>");
    Texts texts;
    for (std::sregex_iterator it(file.begin(), file.end(), item), end; it != end; ++it)
        texts[it->str(1)] = it->str(2);
    return texts;
}

void expectStored(const Texts& texts) {
    for (const auto& [key, text] : texts)
        EXPECT_EQ(storedTexts()[key], text) << key;
}

void setText(const char* key, const std::string& text) {
    CFPreferencesSetAppValue(CFSTR(key), createFromUTF8(text).get(), kAgentBundleID);
}

/// A part of a record as hexadecimal digits.
std::string bytesOf(const PrefsRecord& record, std::size_t offset = 0,
                    std::size_t size = sizeof(PrefsRecord)) {
    const QByteArray image(reinterpret_cast<const char*>(&record) + offset, static_cast<int>(size));
    return image.toHex().toStdString();
}

/// The tables of docs/agent-contract.md.
struct Contract {
    QByteArray record = QByteArray(sizeof(PrefsRecord), '\0');         ///< of all defaults
    Texts notations;                                                   ///< by key
    std::map<std::string, ChangeMask> masks;                           ///< by key
    std::map<std::string, std::pair<std::size_t, std::size_t>> places; ///< offset and size, by key
    Texts examples;                                                    ///< by notation

    Contract() {
        std::istringstream page(readFile(CONTRACT));
        for (std::string line; std::getline(page, line);) {
            QStringList cells;
            for (const QString& cell : QString::fromStdString(line).split('|'))
                cells << cell.trimmed().remove('`');
            if (cells.size() == 10 && cells[2].toInt() > 0) {
                write(cells[1].toInt(), cells[2].toInt(), cells[3], cells[5]);
                masks[cells[7].toStdString()] = cells[6].toUInt(nullptr, 0);
                places[cells[7].toStdString()] = {cells[1].toUInt(), cells[2].toUInt()};
                if (!cells[8].isEmpty())
                    notations[cells[7].toStdString()] = cells[8].toStdString();
            } else if (cells.size() == 7 && cells[2].toInt() > 0) {
                write(cells[2].toInt(), 8, "hot key", cells[4] + ' ' + cells[5]);
            } else if (cells.size() == 6) {
                examples[cells[1].toStdString()] = cells[3].toStdString();
            }
        }
    }

private:
    /// Numbers share the size evenly.
    void write(int offset, int size, const QString& type, const QString& fresh) {
        static const QRegularExpression kNumber("\\b(0x[0-9A-F]+|[0-9.]+)\\b");
        if (fresh.startsWith('"')) {
            const QByteArray text = fresh.section('"', 1, 1).toLatin1();
            record.replace(offset, text.size(), text);
            return;
        }
        QStringList numbers;
        for (auto match = kNumber.globalMatch(fresh); match.hasNext();)
            numbers << match.next().captured();
        for (const QString& number : numbers) {
            const int each = size / static_cast<int>(numbers.size());
            const qulonglong whole = number.toULongLong(nullptr, 0);
            const double real = number.toDouble();
            const float single = number.toFloat();
            const void* bytes = type == "f64"          ? static_cast<const void*>(&real)
                                : type.endsWith("f32") ? static_cast<const void*>(&single)
                                                       : &whole;
            record.replace(offset, each, static_cast<const char*>(bytes), each);
            offset += each;
        }
    }
};

TEST(PrefsTest, AFreshRecordAndTheKeysNotationsAndMasksAreThoseOfTheContract) {
    const Contract contract;
    EXPECT_EQ(bytesOf(prefs), contract.record.toHex().toStdString());
    for (const Setting& setting : kSettings) {
        EXPECT_EQ(setting.changes, contract.masks.at(setting.key)) << setting.key;
        const auto [offset, size] = contract.places.at(setting.key);
        EXPECT_EQ(setting.offset, offset) << setting.key;
        EXPECT_EQ(setting.size, setting.notation == &kSizeNotation ? 2 * size : size);
    }
    ASSERT_TRUE(savePrefs());
    EXPECT_EQ(storedTexts().size(), contract.notations.size());
    for (const auto& [key, notation] : contract.notations) {
        EXPECT_TRUE(storedTexts().contains(key)) << key;
        setText(key.c_str(), contract.examples.at(notation));
        ASSERT_TRUE(CFPreferencesAppSynchronize(kAgentBundleID));
        prefsSetup();
        ASSERT_TRUE(savePrefs());
        EXPECT_EQ(storedTexts()[key], contract.examples.at(notation)) << key;
    }
}

/// From now on this process formats numbers with a comma.
void useCommas() {
    const fs::path folder = makeSandboxFolder("locales");
    const std::string make = "localedef -f UTF-8 -i de_DE " + (folder / "comma").string();
    ASSERT_EQ(std::system(make.c_str()), 0);
    setenv("LOCPATH", folder.c_str(), 1);
    ASSERT_TRUE(std::setlocale(LC_ALL, "comma"));
    ASSERT_EQ(std::stod("2,5"), 2.5);
}

TEST(PrefsTest, WhatIsSavedIsLoadedAgain) {
    ASSERT_NO_FATAL_FAILURE(useCommas());
    PrefsRecord other;
    other.on = 0;
    other.useScanArea = 1;
    other.soundLevel = 0xFFFFFFFE;
    other.scanMode = 2;
    other.scanArea = {-1280.5f, -1024, 640.25f, 480};
    other.lineScanTime = 59.999999;
    other.menuScanSpeedScaleFactor = 1e50;
    other.pointerScanTime = 1e300; // longer than any reader takes: not stored
    other.interClickDelay = -3;
    other.lineColor = {0, 255, 0xFFFF};
    other.lineThickness = -2147483647 - 1;
    std::strcpy(other.pointerImageName, "Fl\x8f"
                                        "che\xa5"); // è and • in Mac OS Roman
    other.hotKeys[0] = {-1, 0};
    other.hotKeys[4] = {0x7F, 0x1B00};
    other.buttonSize = {.height = -32768, .width = 32767};
    const UInt8 actions[] = {39, 0, 255, 1, 2, 3, 4, 5, 6};
    std::memcpy(other.buttonActions, actions, sizeof actions);
    prefs = other;
    ASSERT_TRUE(savePrefs());
    EXPECT_FALSE(storedTexts().contains("scanner.pointerScanTime"));
    EXPECT_EQ(storedTexts()["scanner.pointerImageName"], "Fl\u00e8che\u2022");
    EXPECT_EQ(storedTexts()["hotkeys.keys"],
              "[ {0xffffffff,0x0} {0x4c,0x100} {0x35,0x0} {0x7,0x1a00} {0x7f,0x1b00}]");

    prefs = PrefsRecord();
    prefsSetup();
    other.pointerScanTime = 10;
    EXPECT_EQ(bytesOf(prefs), bytesOf(other));
}

#define AT(field) offsetof(PrefsRecord, field)

const struct {
    const char* key;
    std::string text;
    std::size_t offset;
    std::string bytes; ///< the field's after loading, hexadecimal; empty: the factory's
} kTexts[] = {
    {"on", "No", AT(on), "00"},
    {"soundLevel", "0x" + std::string(60, '0') + "5", AT(soundLevel), "05000000"},
    {"soundLevel", "0x" + std::string(61, '0') + "5", AT(soundLevel), ""},
    {"scanner.preScanDelay", "2,5 s", AT(preScanDelay), "0000000000000040"},
    {"scanner.preScanDelay", "fast", AT(preScanDelay), ""},
    {"scanner.scanMode", "2.", AT(scanMode), ""},
    {"scanner.lineColor", "[0x1ff80,0x80,0x0]", AT(lineColor), "80ff80000000"},
    {"palette.buttonSize", "(70000,40)", AT(buttonSize), ""},
    {"palette.buttonActions", "[ 4294967296]", AT(buttonActions), "0015"},
    {"palette.buttonActions", "[ 1 2 3 4 5 6 7 8 9 10]", AT(buttonActions) + 8, "09000000"},
    {"hotkeys.keys", "[ {1,2} {0x2,0x200}", AT(hotKeys), "07000000001200000200000000020000"},
    {"hotkeys.keys", "[ {0x1,0x100", AT(hotKeys), "01000000000100004c000000"},
    {"scanner.pointerImageName", std::string(99, 'a'), AT(pointerImageName), "00"},
    {"scanner.pointerImageName", "\u4e2d", AT(pointerImageName), "00"},
};

#undef AT

TEST(PrefsTest, TextsThatDontParseLeaveTheirFields) {
    for (const auto& [key, text, offset, bytes] : kTexts) {
        prefs = PrefsRecord();
        setText(key, text);
        prefsSetup();
        const std::size_t size = bytes.empty() ? 8 : bytes.size() / 2;
        EXPECT_EQ(bytesOf(prefs, offset, size),
                  bytes.empty() ? bytesOf(PrefsRecord(), offset, size) : bytes)
            << key << " = " << text;
        CFPreferencesSetAppValue(CFSTR(key), nullptr, kAgentBundleID);
    }
}

TEST(PrefsTest, WhatTheUserChoseIsStoredAndTheRestYieldsToOthers) {
    const auto store = [](const std::string& on, const std::string& others) {
        writeFile(kDomainFile, dictionaryFile("<key>on</key><string>" + on + "</string>" + others));
    };
    const std::string spelling = "<key>scanner.lineScanTime</key><string>10</string>";
    const std::string agents = "<key>soundLevel</key><string>0x1</string>";
    store("yes", spelling);
    prefsSetup();
    store("no", spelling + agents);
    for (const bool on : {false, true}) {
        prefs.on = on;
        prefs.soundLevel = on ? 50 : 60; // changed, and as it was loaded again
        prefsWereChanged(&prefs.on);
    }
    ASSERT_TRUE(savePrefs());
    expectStored({{"on", "yes"}, {"soundLevel", "0x1"}, {"scanner.lineScanTime", "10.000000"}});

    store("no", agents); // the visit goes on
    prefs.buttonGap = 9;
    ASSERT_TRUE(savePrefs());
    expectStored({{"on", "no"}, {"soundLevel", "0x1"}, {"palette.buttonGap", "9"}});

    store("no", agents);
    prefsWereChanged(&prefs.on);
    ASSERT_TRUE(savePrefs());
    expectStored({{"on", "yes"}});
    fs::remove(kDomainFile);
    ASSERT_TRUE(savePrefs());
    EXPECT_EQ(storedTexts().size(), Contract().notations.size());
}

TEST(PrefsTest, ValuesOfOtherTypesLeaveTextFields) {
    writeFile(kDomainFile, dictionaryFile("<key>on</key><false/>"
                                          "<key>scanner.scanMode</key><real>2.9</real>"
                                          "<key>soundLevel</key><integer>9</integer>"
                                          "<key>hotkeys.keys</key><array/>"));
    PrefsRecord expected;
    expected.on = 0;
    expected.scanMode = 2;
    prefsSetup();
    EXPECT_EQ(bytesOf(prefs), bytesOf(expected));
}

} // namespace
