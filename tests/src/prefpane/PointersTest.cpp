#include "src/prefpane/ptrman.h"
#include "src/ptrutil.h"
#include "tests/support/AgentBundle.h"

#include <QImage>
#include <gmock/gmock.h>

#include <cstring>
#include <dirent.h>
#include <optional>
#include <set>
#include <sys/stat.h>
#include <vector>

namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

/// The catalogue and the loader, on the pointers of a bundle that the test writes.
class PointersTest : public testing::Test {
protected:
    ~PointersTest() override { ptrmanCleanup(); }

    static void touch(const std::string& file) {
        AgentBundle::write(AgentBundle::pointers() / file, "");
    }

    static std::string png(int width, int height) {
        const fs::path file = AgentBundle::path() / "made.png";
        QImage image(width, height, QImage::Format_ARGB32);
        image.fill(Qt::red);
        EXPECT_TRUE(image.save(QString::fromStdString(file.string())));
        std::ifstream stream(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    static std::optional<std::string> step(const char* current, bool forward) {
        char out[kMaxPointerNameLength + 1] = "untouched";
        if (ptrmanGetNextPointer(current, forward, out))
            return out;
        EXPECT_STREQ(out, "untouched");
        return std::nullopt;
    }

    /// All names, found by stepping until the first comes again.
    static Names catalogue(bool forward = true) {
        Names names;
        for (auto name = step(nullptr, forward); name && (names.empty() || *name != names.front());
             name = step(name->c_str(), forward))
            names.push_back(*name);
        return names;
    }

    /// The folder's files without their last four bytes, as the system lists them.
    static Names listing() {
        Names names;
        DIR* folder = opendir(AgentBundle::pointers().c_str());
        while (const dirent* entry = readdir(folder))
            if (entry->d_type == DT_REG)
                names.emplace_back(entry->d_name, std::strlen(entry->d_name) - 4);
        closedir(folder);
        return names;
    }

    AgentBundle bundle_;
};

TEST_F(PointersTest, OnlyRegularFilesOfSuitableNamesAreListed) {
    const std::string longest(99, 'n'), tooLong(100, 't');
    for (const std::string& file :
         {longest + ".png", tooLong + ".png", std::string("x.PNG"), std::string("\xFF\xFE.png"),
          std::string("a+1x2.pNg"), std::string(".png"), std::string("apng"), std::string("b.png~"),
          std::string("c.jpg")})
        touch(file);
    fs::create_directory(AgentBundle::pointers() / "folder.png");
    fs::create_symlink("x.PNG", AgentBundle::pointers() / "link.png");
    ASSERT_EQ(mkfifo((AgentBundle::pointers() / "pipe.png").c_str(), 0600), 0);
    EXPECT_THAT(catalogue(), testing::UnorderedElementsAre(longest, "x", "\xFF\xFE", "a+1x2"));
}

TEST_F(PointersTest, TheFirst250AreTakenInTheListingsOrder) {
    for (int i = 0; i < 300; ++i)
        touch("pointer " + std::to_string(i * 7919 % 300) + ".png");
    Names expected = listing();
    ASSERT_EQ(expected.size(), 300U);
    expected.resize(250);
    EXPECT_EQ(catalogue(), expected);
    std::reverse(expected.begin(), expected.end());
    EXPECT_EQ(catalogue(false), expected);
}

TEST_F(PointersTest, SteppingStartsAtAnEndWithoutACurrentName) {
    for (const char* file : {"Default.PNG", "b.png", "c.png"})
        touch(file);
    const Names names = catalogue();
    ASSERT_EQ(names.size(), 3U);
    for (const char* unknown : {static_cast<const char*>(nullptr), "", "gone", "b.png", "../b"}) {
        EXPECT_EQ(step(unknown, true), names.front());
        EXPECT_EQ(step(unknown, false), names.back());
    }
    EXPECT_EQ(step("default", true), step("Default", true));
    EXPECT_EQ(step("DEFAULT", false), step("Default", false));
    fs::remove(AgentBundle::pointers() / "b.png");
    fs::remove(AgentBundle::pointers() / "c.png");
    EXPECT_EQ(step("Default", true),
              names[(std::find(names.begin(), names.end(), "Default") - names.begin() + 1) % 3])
        << "the folder is read once";
    ptrmanCleanup();
    EXPECT_EQ(step("default", true), "Default") << "a single one is its own neighbour";
    EXPECT_EQ(step("default", false), "Default");
}

TEST_F(PointersTest, WithoutAFolderThereAreNoNamesUntilTheNextVisit) {
    EXPECT_EQ(step("default", true), std::nullopt) << "an empty folder";
    touch("late.png");
    EXPECT_EQ(step("default", true), std::nullopt) << "a failure is not retried";
    ptrmanCleanup();
    EXPECT_EQ(step("default", true), "late");

    fs::remove_all(AgentBundle::pointers());
    ptrmanCleanup();
    EXPECT_EQ(step("late", true), std::nullopt) << "no folder";
    AgentBundle::write(AgentBundle::pointers(), "a file");
    ptrmanCleanup();
    EXPECT_EQ(step("late", true), std::nullopt) << "no folder but a file";
    daemonCleanup();
    ptrmanCleanup();
    EXPECT_EQ(step("late", true), std::nullopt) << "no agent";
}

TEST_F(PointersTest, TheLastPlusGivesTheHotSpot) {
    const struct {
        const char* name;
        float x, y;
        const char* title;
    } cases[] = {
        {"hand", 0, 0, "hand"},
        {"hand+12x7", 12, 7, "hand"},
        {"hand+12", 0, 0, "hand+12"},
        {"a+1x2+3x4", 3, 4, "a+1x2"},
        {"a+1x2+b", 0, 0, "a+1x2+b"},
        {"minus+-3x-4", -3, -4, "minus"},
        {"no y+1x", 0, 0, "no y+1x"},
        {"no x+x2", 0, 0, "no x+x2"},
        {"capital+1X2", 0, 0, "capital+1X2"},
        {"more+1x2 copy", 1, 2, "more"},
        {"+5x6", 5, 6, "+5x6"},
        {"far+2000000000x1", 2e9F, 1, "far"},
        {"absurd+999999999999x5", 0, 0, "absurd+999999999999x5"},
        {"absurd+5x99999999999999999999999", 0, 0, "absurd+5x99999999999999999999999"},
    };

    const std::string content = png(3, 2);
    for (const auto& test : cases) {
        SCOPED_TRACE(test.name);
        AgentBundle::write(AgentBundle::pointers() / (test.name + std::string(".png")), content);
        PointerImage pointer;
        ASSERT_TRUE(ptrutilLoadPointerFromBundle(daemonMainBundle(), test.name, &pointer));
        EXPECT_EQ(CGImageGetWidth(pointer.image.get()), 3U);
        EXPECT_EQ(CGImageGetHeight(pointer.image.get()), 2U);
        EXPECT_EQ(pointer.hotSpot.x, test.x);
        EXPECT_EQ(pointer.hotSpot.y, test.y);
        EXPECT_EQ(ptrutilPointerTitle(test.name), test.title);
        ptrutilDisposePointer(&pointer);
        EXPECT_FALSE(pointer.image);
    }
    AgentBundle::write(AgentBundle::pointers() / "Upper.PNG", content);
    PointerImage pointer;
    EXPECT_TRUE(ptrutilLoadPointerFromBundle(daemonMainBundle(), "upper", &pointer));
}

TEST_F(PointersTest, WhatIsNoPictureInTheFolderIsNotLoaded) {
    const std::string good = png(64, 64);
    std::string huge = good;
    huge[16] = 0x7F; // the width's highest byte
    const fs::path folder = AgentBundle::pointers();
    AgentBundle::write(folder / "good.png", good);
    AgentBundle::write(folder / "cut.png", good.substr(0, good.size() / 2));
    AgentBundle::write(folder / "head.png", good.substr(0, 20));
    AgentBundle::write(folder / "huge.png", huge);
    AgentBundle::write(folder / "text.png", "GIF89a, says the text");
    AgentBundle::write(folder / "empty.png", "");
    AgentBundle::write(folder / "\xFF.png", good);
    AgentBundle::write(AgentBundle::resources() / "outside.png", good);
    fs::create_directories(folder / "inner");
    AgentBundle::write(folder / "inner/deep.png", good);
    fs::create_directory(folder / "folder.png");
    fs::create_symlink(AgentBundle::resources() / "outside.png", folder / "link.png");
    fs::create_symlink("nothing", folder / "dangling.png");

    const std::string absolute = (AgentBundle::resources() / "outside").string();
    PointerImage pointer{{}, {7, 8}};
    for (const char* name : {"", "gone", "cut", "head", "huge", "text", "empty", "\xFF",
                             "../outside", "..", "inner/deep", "inner/../good", "./good", "folder",
                             "link", "dangling", absolute.c_str()}) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(ptrutilLoadPointerFromBundle(daemonMainBundle(), name, &pointer));
        EXPECT_FALSE(pointer.image);
        EXPECT_EQ(pointer.hotSpot.x, 7);
    }
    EXPECT_FALSE(ptrutilLoadPointerFromBundle(nullptr, "good", &pointer));
    EXPECT_TRUE(ptrutilLoadPointerFromBundle(daemonMainBundle(), "good", &pointer));
}

} // namespace
