// SPDX-License-Identifier: MIT
#include "src/store/profiles.h"
#include "tests/support/PaneFixture.h"

#include <QDir>
#include <QFileDialog>
#include <QListWidget>

namespace {

class ProfileEditorTest : public PaneTest {
protected:
    std::string shown() { return find<QPushButton>("profileMenu")->text().toStdString(); }

    /// Saves the settings by two presses.
    void save(const char* nameButton) {
        click(nameButton);
        click("saveProfileBtn");
    }

    /// The entries of the menu, of which the one in that row is chosen; -1 for none.
    QStringList menu(int row, const char* name = "profileMenu") {
        auto* button = find(name);
        QTest::keyClick(button, Qt::Key_Space);
        auto* list = button->findChild<QListWidget*>();
        QStringList entries;
        for (int i = 0; i < list->count(); ++i) {
            entries << list->item(i)->text();
            EXPECT_GE(list->visualItemRect(list->item(i)).height(), 44);
        }
        list->setCurrentRow(row);
        QTest::keyClick(list, row < 0 ? Qt::Key_Escape : Qt::Key_Return);
        return entries;
    }
};

TEST_F(ProfileEditorTest, AProfileIsUsedAsOneChangeWhichUndoTakesBackWithItsName) {
    openWithAgent();
    EXPECT_EQ(shown(), "Profiles");
    save("profileNameMorning");
    prefs.soundLevel = 20;
    prefs.lineScanTime = 20;
    prefs.on = 0;
    theWrangler->changed(kChangeSounds | kChangeScanSpeed);
    EXPECT_EQ(agentLog_.nextName(), "SAPr");
    EXPECT_EQ(shown(), "Morning, changed");
    EXPECT_EQ(menu(-1), QStringList({"Back to “Morning”", "Save the changes in “Morning”",
                                     "Save, rename, delete…"}));
    save("profileNameTired");
    EXPECT_EQ(told(), "The settings are saved as “Tired”.");
    EXPECT_EQ(menu(0).first(), "Use “Morning”");
    EXPECT_EQ(told(), "“Morning” is in use. Volume: 20 to 50, and 1 more setting.");
    const auto sent = agentLog_.next();
    EXPECT_EQ(sent["mask"].toInteger(), kChangeSounds | kChangeScanSpeed);
    EXPECT_EQ(prefs.on, 0);
    EXPECT_EQ(shown(), "Morning");
    currentMessage()->message.buttons.at(1).press(); // “Show all”
    EXPECT_EQ(told(), "“Morning” is in use. It has changed:\nVolume: 20 to 50\n"
                      "Line crosses the screen in: 20.0 to 10.0 sec");
    pressInStrip();
    EXPECT_EQ(double{prefs.lineScanTime}, 20);
    EXPECT_EQ(shown(), "Tired");
    click("redoBtn");
    EXPECT_EQ(shown(), "Morning");
    EXPECT_EQ(currentProfile(), "Morning");
    EXPECT_EQ(remainingMasks().size(), 2u);
}

TEST_F(ProfileEditorTest, TheSectionUpdatesRenamesAndDeletesAndPutsBack) {
    open();
    save("profileNameMorning");
    save("profileNameMorning");
    EXPECT_EQ(profileNames(), (std::vector<std::string>{"Morning", "Morning 2"}));
    click("volumeIncBtn");
    EXPECT_EQ(find<QLabel>("profileExplanation")->text(),
              "“Morning 2” would change:\nVolume: 51 to 50");
    find("updateProfileBtn")->setFocus();
    click("updateProfileBtn");
    EXPECT_EQ(window()->focusWidget()->objectName(), QLatin1String("profileGrid"));
    EXPECT_EQ(menu(1, "compareMenu"), QStringList({"The settings as they are", "“Morning”"}));
    EXPECT_EQ(find<QLabel>("profileExplanation")->text(),
              "“Morning 2” in place of “Morning” would change:\nVolume: 50 to 51");
    EXPECT_EQ(shown(), "Morning 2");
    pressInStrip();
    EXPECT_EQ(shown(), "Morning 2, changed");
    find<QLineEdit>("profileName")->setText("Müde");
    click("renameProfileBtn");
    EXPECT_EQ(shown(), "Müde, changed");
    click("deleteProfileBtn");
    EXPECT_EQ(profileNames(), std::vector<std::string>{"Morning"});
    EXPECT_EQ(shown(), "Profiles");
    pressInStrip();
    EXPECT_EQ(shown(), "Müde, changed");
    EXPECT_EQ(readProfile("Müde", prefs).record.soundLevel, 50u);
}

TEST_F(ProfileEditorTest, OfAFileTheSoundSettingsAreOfferedAndTakenAsOneChange) {
    const QString path = QDir::homePath() + "/brought.plist";
    const auto chooseFile = [&](const char* button) {
        click(button);
        auto* dialog = window()->findChild<QFileDialog*>();
        dialog->selectFile(path);
        static_cast<QDialog*>(dialog)->accept();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    };
    const auto import = [&](const char* text) {
        std::ofstream(path.toStdString()) << text;
        chooseFile("importBtn");
    };
    openWithAgent();
    import("<plist><dict><key>soundLevel</key><string>0x3");
    EXPECT_EQ(told(), "“brought.plist” can’t be used: damaged, or no file of settings.");
    import("<plist><dict><key>soundLevel</key><string>0x3</string>"
           "<key>palette.borderGap</key><string>101</string>"
           "<key>scanner.lineScanTime</key><string>12</string><key>tomorrow</key><true/></dict></"
           "plist>");
    const std::string all = "“brought.plist” would change:\nVolume: 50 to 3\n"
                            "Line crosses the screen in: 10.0 to 12.0 sec";
    EXPECT_EQ(told(), all + "\nLeft out: palette.borderGap: outside 0 to 100 points.\nLeft out: "
                            "tomorrow: no setting of this version.");
    EXPECT_EQ(currentMessage()->message.buttons.at(1).label, "Keep mine");
    EXPECT_EQ(prefs.soundLevel, 50u);
    pressInStrip();
    EXPECT_EQ(agentLog_.nextMask(), kChangeSounds | kChangeScanSpeed);
    fs::remove(path.toStdString());
    chooseFile("exportBtn");
    EXPECT_THAT(told(), testing::HasSubstr(path.toStdString()));
    click("undoBtn");
    EXPECT_EQ(prefs.soundLevel, 50u);
    chooseFile("importBtn");
    EXPECT_THAT(told(), testing::StartsWith(all));
    EXPECT_EQ(remainingMasks().size(), 1u);
}

TEST_F(ProfileEditorTest, WhatCannotBeDoneIsToldAndChangesNothing) {
    const fs::path folder = std::string(std::getenv("XDG_DATA_HOME")) + "/korvex";
    const fs::path state = std::getenv("XDG_STATE_HOME");
    for (const fs::path& blocked : {folder / "profiles", state / "korvex"})
        writeFile(blocked, "in the way");
    open();
    save("profileNameMorning");
    EXPECT_EQ(told(), "“Morning” couldn’t be saved: Not a directory.");
    EXPECT_TRUE(find<QLabel>("profileExplanation")->text().startsWith("Your profiles can’t be"));
    EXPECT_EQ(find<QLineEdit>("profileName")->text(), "Morning");
    EXPECT_EQ(shown(), "Profiles");
    find<QLineEdit>("profileName")->clear();
    click("saveProfileBtn");
    EXPECT_EQ(told(), "First type a name, or press one of the ready ones.");
    std::filesystem::remove(folder / "profiles");
    save("profileNameMorning");
    EXPECT_EQ(told(),
              "The settings are saved as “Morning”. Which profile is in use can’t be kept: " +
                  state.string() + "/korvex/profile: Not a directory.");
    EXPECT_EQ(menu(-1).first(), "“Morning” is in use");
}

} // namespace
