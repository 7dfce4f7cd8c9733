// SPDX-License-Identifier: MIT
#include "src/tryout/history.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <sys/stat.h>

using namespace tryout;

namespace {

const fs::path kFolder = fs::path(std::getenv("XDG_DATA_HOME")) / "korvex";
const fs::path kFile = kFolder / "tries.csv";
const PastTry kTry{"2026-11-25 14:30", 12.5, 1.5, 521.3, 10, 1, 0, -0.0215, 0.1 + 0.2, 7, 5};

} // namespace

TEST(TryoutHistory, TriesOutliveTheVisitUntilTheyAreDeleted) {
    EXPECT_TRUE(History().add(kTry));
    EXPECT_TRUE(History().add({"2026-11-26 09:00"}));

    struct stat info {};

    ASSERT_EQ(stat(kFile.c_str(), &info), 0);
    EXPECT_EQ(info.st_mode & 0777U, 0600U);

    History history;
    ASSERT_EQ(history.tries().size(), 2U);
    EXPECT_EQ(csvOf({history.tries().data(), 1}), csvOf({&kTry, 1}));
    const std::string copy = history.exportCopy();
    EXPECT_EQ(readFile(copy), csvOf(history.tries()));
    EXPECT_TRUE(history.clear());
    EXPECT_FALSE(fs::exists(kFile));
    EXPECT_TRUE(history.tries().empty() && History().tries().empty());
    EXPECT_TRUE(fs::exists(copy));
}

TEST(TryoutHistory, ADamagedFileIsKeptAside) {
    const std::string sound = csvOf({&kTry, 1});
    const std::string damaged[] = {"", "x\n", sound.substr(0, sound.size() - 1), sound + "2026\n",
                                   sound + sound.substr(sound.find('\n') + 1, 30) + "nan\n"};
    int kept = 0;
    for (const std::string& text : damaged) {
        writeFile(kFile, text);
        History history;
        EXPECT_TRUE(history.tries().empty()) << text;
        EXPECT_TRUE(history.add(kTry));
        EXPECT_EQ(readFile(kFile.string() + ".damaged-" + std::to_string(++kept)), text);
        EXPECT_EQ(readFile(kFile), sound);
    }
}

TEST(TryoutHistory, WhatCannotBeReadOrWrittenIsLeftAlone) {
    fs::create_directories(kFile);
    History history;
    EXPECT_FALSE(history.add(kTry));
    EXPECT_EQ(history.tries().size(), 1U);
    EXPECT_FALSE(history.clear());
    EXPECT_TRUE(fs::is_directory(kFile));
}
