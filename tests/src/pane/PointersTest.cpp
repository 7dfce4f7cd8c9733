// SPDX-License-Identifier: MIT
#include "src/files/ptrutil.h"
#include "src/pane/pointers/ptrman.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/AgentBundle.h"
#include "tests/support/TestIcons.h"

#include <optional>
#include <sys/stat.h>

namespace {

using Names = std::vector<std::string>;

/// The catalogue and the loader, with pointers in a bundle that the test writes.
class PointersTest : public testing::Test {
protected:
    ~PointersTest() override { ptrmanCleanup(); }

    static void touch(const std::string& file, const std::string& content = "") {
        AgentBundle::write(AgentBundle::pointers() / file, content);
    }

    static std::optional<std::string> step(const char* current, bool forward) {
        char out[kMaxPointerNameLength + 1] = "untouched";
        if (ptrmanGetNextPointer(current, forward, out))
            return out;
        EXPECT_STREQ(out, "untouched");
        return std::nullopt;
    }

    /// All names, by stepping until the first comes again.
    static Names catalogue(bool forward = true) {
        Names names;
        for (auto name = step(nullptr, forward); name && (names.empty() || *name != names.front());
             name = step(name->c_str(), forward))
            names.push_back(*name);
        return names;
    }

    AgentBundle bundle_;
};

TEST_F(PointersTest, OnlyRegularFilesOfSuitableNamesAreListed) {
    const fs::path folder = AgentBundle::pointers();
    const std::string longest(99, 'n');
    for (const std::string& name :
         {longest, std::string(100, 't'), std::string("\xFF\xFE"), std::string()})
        touch(name + ".png");
    for (const char* file : {"x.PNG", "a+1x2.pNg", "apng", "b.png~", "c.jpg"})
        touch(file);
    fs::create_directory(folder / "folder.png");
    fs::create_symlink("x.PNG", folder / "link.png");
    ASSERT_EQ(mkfifo((folder / "pipe.png").c_str(), 0600), 0);
    EXPECT_THAT(catalogue(), testing::UnorderedElementsAre(longest, "x", "\xFF\xFE", "a+1x2"));
}

TEST_F(PointersTest, TheFirst250AreTakenInTheListingsOrder) {
    for (int i = 0; i < 300; ++i)
        touch("pointer " + std::to_string(i * 7919 % 300) + ".png");
    Names expected;
    for (const auto& entry : fs::directory_iterator(AgentBundle::pointers()))
        expected.push_back(entry.path().stem());
    expected.resize(250);
    EXPECT_EQ(catalogue(), expected);
    std::reverse(expected.begin(), expected.end());
    EXPECT_EQ(catalogue(false), expected);
}

TEST_F(PointersTest, SteppingStartsAtAnEndWithoutACurrentName) {
    EXPECT_EQ(step("default", true), std::nullopt) << "an empty folder";
    for (const char* file : {"Default.PNG", "b.png", "c.png"})
        touch(file);
    EXPECT_EQ(step("default", true), std::nullopt) << "the folder is read once";
    ptrmanCleanup();
    const Names names = catalogue();
    ASSERT_EQ(names.size(), 3U);
    for (const char* unknown : {static_cast<const char*>(nullptr), "", "b.png", "../b"}) {
        EXPECT_EQ(step(unknown, true), names.front());
        EXPECT_EQ(step(unknown, false), names.back());
    }
    EXPECT_EQ(step("DEFAULT", false), step("Default", false));
    fs::remove(AgentBundle::pointers() / "b.png");
    fs::remove(AgentBundle::pointers() / "c.png");
    ptrmanCleanup();
    EXPECT_EQ(step("default", false), "Default") << "a single one is its own neighbour";

    fs::remove_all(AgentBundle::pointers());
    ptrmanCleanup();
    EXPECT_EQ(step("default", true), std::nullopt) << "no folder";
    daemonCleanup();
    ptrmanCleanup();
    EXPECT_EQ(step("default", true), std::nullopt) << "no agent";
}

TEST_F(PointersTest, TheLastPlusGivesTheHotSpot) {
    const struct {
        const char* name;
        float x, y;
        const char* title = name;
    } cases[] = {
        {"hand+12x7", 12, 7, "hand"},
        {"hand+12", 0, 0},
        {"a+1x2+3x4", 3, 4, "a+1x2"},
        {"minus+-3x-4", -3, -4, "minus"},
        {"no y+1x", 0, 0},
        {"capital+1X2", 0, 0},
        {"more+1x2 copy", 1, 2, "more"},
        {"far+2000000000x1", 2e9F, 1, "far"},
        {"absurd+5x99999999999999999999999", 0, 0},
    };

    const std::string content = pngBytes(3, 2, Qt::red);
    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        touch(test.name + std::string(".png"), content);
        PointerImage pointer;
        ASSERT_TRUE(ptrutilLoadPointerFromBundle(daemonMainBundle(), test.name, &pointer));
        EXPECT_EQ(CGImageGetWidth(pointer.image.get()), 3U);
        EXPECT_EQ(std::pair(pointer.hotSpot.x, pointer.hotSpot.y), std::pair(test.x, test.y));
        EXPECT_EQ(ptrutilPointerTitle(test.name), test.title);
        ptrutilDisposePointer(&pointer);
    }
}

TEST_F(PointersTest, WhatIsNoPictureInTheFolderIsNotLoaded) {
    const std::string good = pngBytes(64, 64, Qt::red);
    const fs::path folder = AgentBundle::pointers(), outside = AgentBundle::resources() / "outside";
    fs::create_directories(folder / "inner");
    for (const char* file : {"Good.PNG", "\xFF.png", "../outside.png", "inner/deep.png"})
        touch(file, good);
    touch("cut.png", good.substr(0, good.size() / 2));
    fs::create_directory(folder / "folder.png");
    fs::create_symlink(outside.string() + ".png", folder / "link.png");
    fs::create_symlink("nothing", folder / "dangling.png");

    PointerImage pointer{{}, {7, 8}};
    for (const char* name : {"", "gone", "cut", "\xFF", "../outside", "..", "inner/deep", "./Good",
                             "folder", "link", "dangling", outside.c_str()}) {
        EXPECT_FALSE(ptrutilLoadPointerFromBundle(daemonMainBundle(), name, &pointer)) << name;
        EXPECT_TRUE(!pointer.image && pointer.hotSpot.x == 7) << name;
    }
    EXPECT_FALSE(ptrutilLoadPointerFromBundle(nullptr, "good", &pointer));
    EXPECT_TRUE(ptrutilLoadPointerFromBundle(daemonMainBundle(), "good", &pointer));
}

} // namespace
