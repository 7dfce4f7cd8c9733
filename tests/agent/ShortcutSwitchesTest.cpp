// SPDX-License-Identifier: MIT
#include "agent/wayland/ShortcutSwitches.h"

#include <QCoreApplication>

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;

constexpr UInt32 kOnOff = 0, kScan = 1, kCancel = 2, kSettings = 3, kSecond = 4;

class ShortcutSwitchesTest : public testing::Test, private Switches::Listener {
protected:
    ShortcutSwitchesTest() {
        switches_.setState(Switches::State::Ready);
        up(kScan, 0.5); // this desktop tells it
    }

    void down(UInt32 key, double moment) { switches_.take(key, true, moment); }

    void up(UInt32 key, double moment) { switches_.take(key, false, moment); }

    std::vector<std::string> heard() { return std::exchange(heard_, {}); }

    ShortcutSwitches switches_{*this};

private:
    void tell(const char* what, Switch which, double moment) {
        const char* const name = which == Switch::First ? "first" : "second";
        heard_.push_back(std::string(name) + what + std::to_string(moment).substr(0, 3));
    }

    void switchDown(Switch which, double moment) override { tell(" down ", which, moment); }

    void switchUp(Switch which, double moment) override { tell(" up ", which, moment); }

    void onOffKey() override { heard_.emplace_back("on/off"); }

    void showSettingsKey() override { heard_.emplace_back("settings"); }

    void cancelKey() override { heard_.emplace_back("cancel"); }

    std::vector<std::string> heard_;
};

TEST_F(ShortcutSwitchesTest, TellsPressesInTheirOrderWhateverTheirWay) {
    down(kScan, 1), down(kSecond, 1.1), up(kScan, 1.2), up(kSecond, 1.3);
    EXPECT_THAT(heard(),
                ElementsAre("first down 1.0", "second down 1.1", "first up 1.2", "second up 1.3"));
    up(kScan, 2.1), down(kScan, 2);
    EXPECT_THAT(heard(), ElementsAre("first down 2.0", "first up 2.1")) << "overtaken";
    down(kScan, 3), down(kScan, 3.6), down(kScan, 3.7), up(kScan, 4);
    EXPECT_THAT(heard(), ElementsAre("first down 3.0", "first up 4.0")) << "the keyboard repeats";
    EXPECT_EQ(switches_.trouble(), "");
}

/// A press that seemed to be held would end everything after ten seconds.
TEST_F(ShortcutSwitchesTest, WithoutReleasesAPressIsOverAtOnce) {
    PrefsRecord record;
    switches_.use(record, 1);
    down(kScan, 5), down(kScan, 6), down(kScan, 6.5), down(kScan, 8);
    EXPECT_THAT(heard(), ElementsAre("first down 5.0", "first up 6.0", "first down 6.0",
                                     "first up 6.0", "first down 8.0", "first up 8.0"));
    EXPECT_EQ(switches_.trouble(), "");
    record.scanMode = 1;
    switches_.use(record, 1);
    EXPECT_NE(switches_.trouble(), "");
    up(kScan, 8.1), down(kScan, 9), up(kScan, 9.5);
    EXPECT_THAT(heard(), ElementsAre("first down 9.0", "first up 9.5"));
    EXPECT_EQ(switches_.trouble(), "");
}

TEST_F(ShortcutSwitchesTest, OtherKeysDoWhatTheStateLetsThem) {
    down(kCancel, 1), up(kCancel, 1.1), down(kOnOff, 2), down(kSettings, 2);
    EXPECT_THAT(heard(), ElementsAre("on/off", "settings"));
    switches_.setState(Switches::State::Scanning);
    down(kCancel, 3);
    EXPECT_THAT(heard(), ElementsAre("cancel"));
    down(kScan, 4);
    switches_.setState(Switches::State::Free); // the pane has the keys
    up(kScan, 5), down(kScan, 6), down(kOnOff, 6);
    switches_.setState(Switches::State::Ready);
    up(kScan, 7);
    EXPECT_THAT(heard(), ElementsAre("first down 4.0"));
}

} // namespace
