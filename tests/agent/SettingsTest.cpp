// SPDX-License-Identifier: MIT
#include "agent/scan/Settings.h"
#include "src/record/differences.h"
#include "src/record/settingcheck.h"

#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <random>

namespace {

bool isSame(const PrefsRecord& a, const PrefsRecord& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace

TEST(Settings, WhatIsWrongBecomesTheNearest) {
    PrefsRecord wrong, right;
    wrong.lineScanTime = NAN, right.lineScanTime = 1;
    wrong.pointerScanTime = INFINITY, right.pointerScanTime = 60;
    wrong.afterClickDelay = 1e300, right.afterClickDelay = 10;
    wrong.soundLevel = 0xFFFFFFFF, right.soundLevel = 100;
    wrong.lineThickness = -2147483647, right.lineThickness = 1;
    wrong.on = 200, right.on = 1;
    wrong.useScanArea = wrong.triggerOnRelease = 2, right.useScanArea = 0;
    wrong.scanMode = -1, right.scanMode = 0;
    wrong.scanArea = {1, 1, INFINITY, 1}, right.scanArea = {};
    wrong.lineColor = {256, 255, 0xFFFF}, right.lineColor = {255, 255, 255};
    wrong.pointerImageName[0] = 0;
    wrong.buttonSize = {-1, 101}, right.buttonSize = {20, 100};
    wrong.buttonContent = 6, right.buttonContent = 2;
    wrong.buttonActions[8] = 40, right.buttonActions[8] = 0;
    const PrefsRecord checked = checkedRecord(wrong);
    for (std::size_t i = 0; i < kSettings.size(); ++i)
        EXPECT_FALSE(differences(checked, right)[i] && kSettings[i].notation != &kTextNotation)
            << kSettings[i].key;
    EXPECT_STREQ(checked.pointerImageName, "default");
}

/// The pane's own check finds nothing in it, but an area that isn't used.
TEST(Settings, WhateverIsSentBecomesARecord) {
    std::mt19937 random(340);
    for (int run = 0; run < 1000; ++run) {
        PrefsRecord sent;
        for (std::size_t i = 0; i < sizeof sent; ++i)
            reinterpret_cast<UInt8*>(&sent)[i] = static_cast<UInt8>(random());
        const PrefsRecord checked = checkedRecord(sent);
        for (const Setting& setting : kSettings)
            ASSERT_TRUE(settingFault(setting, checked).empty() ||
                        setting.offset == offsetof(PrefsRecord, useScanArea))
                << setting.key;
        ASSERT_TRUE(std::memchr(checked.pointerImageName, 0, sizeof checked.pointerImageName));
        ASSERT_TRUE(isSame(checkedRecord(checked), checked)) << "what is right stays";
        copySettings(SettingSet().set(), checked, sent);
        ASSERT_TRUE(isSame(sent, checked)) << "bytes that are no setting stay";
    }
    EXPECT_TRUE(isSame(checkedRecord({}), {}));
}
