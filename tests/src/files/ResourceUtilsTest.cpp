// SPDX-License-Identifier: MIT
#include "platform/IconServices/detail/IconImages.h"
#include "src/files/fsutil.h"
#include "src/files/iconutil.h"
#include "tests/platform/CoreFoundation/TestFiles.h"
#include "tests/support/TestIcons.h"

#include <sys/stat.h>

namespace {

/// A bundle in the sandbox for resources.
class ResourceUtilsTest : public testing::Test {
protected:
    ResourceUtilsTest() {
        writeFile(resources_ / "../Info.plist", dictionaryFile(""));
        fs::create_directory(resources_);
        bundle_ = CFBundleCreate(url(resources_ / "../..").get());
        iconUtilSetup();
    }

    ~ResourceUtilsTest() override { iconUtilCleanup(); }

    static CFRef<CFURL> url(const fs::path& path) {
        return CFURLCreateFromFileSystemRepresentation(path.lexically_normal().c_str(), false);
    }

    void write(const char* name, std::string_view bytes) { writeFile(resources_ / name, bytes); }

    IconRef icon(const char* name) {
        return iconUtilGetBundlesResourceIcon(bundle_.get(), CFSTR(name));
    }

    /// The icon registered with that type, else null.
    static IconRef registeredAs(UInt32 type) {
        CFRef<Icon> icon;
        GetIconRef(kOnSystemDisk, fourCharCode("Krvx"), type, &icon);
        return icon.get();
    }

    fs::path resources_ = makeSandboxFolder("Test.app/Contents") / "Resources";
    CFRef<CFBundle> bundle_;
};

TEST_F(ResourceUtilsTest, FilesAreReadFromAnOffsetOnOrNotAtAll) {
    write("digits", "0123456789");
    write("huge", "");
    fs::resize_file(resources_ / "huge", kMaxFileContents + 1);
    mkfifo((resources_ / "pipe").c_str(), 0600);

    const struct {
        const char* name;
        SInt32 offset;
        CFIndex length; // -1 when nothing is read
    } cases[] = {{"digits", INT32_MIN, 10}, {"digits", 4, 6}, {"digits", 10, 0}, {"digits", 11, -1},
                 {"digits", INT32_MAX, -1}, {"huge", 0, -1},  {"pipe", 0, -1},   {"none", 0, -1}};

    const auto openBefore = countOpenFiles();
    for (const auto& row : cases) {
        const Handle handle =
            fsGetFileContentsAsHandle(url(resources_ / row.name).get(), row.offset);
        EXPECT_EQ(handle ? GetHandleSize(handle) : -1, row.length) << row.name << row.offset;
    }
    EXPECT_EQ(countOpenFiles(), openBefore) << "left open";
    EXPECT_EQ(fsGetFileContents(url(resources_ / "digits").get())->bytes().size(), 10u);
    EXPECT_FALSE(fsGetFileContents(url(resources_ / "huge").get()));
}

TEST_F(ResourceUtilsTest, EveryIconFileIsRegisteredOnceAndNoNumberTwice) {
    const std::string good = pngFamily({{16, Qt::red}, {32, Qt::green}});
    write("red.icns", good);
    write("noise.icns", "icns and more");
    EXPECT_EQ(icon("none"), nullptr);
    EXPECT_EQ(iconUtilGetResourceIcon(CFSTR("red")), nullptr) << "no main bundle";
    const IconRef red = icon("red"); // type 1: none of those used a number up
    ASSERT_TRUE(red);
    EXPECT_EQ(icon("red"), red);
    EXPECT_EQ(registeredAs(1), red);
    for (const UInt32 type : {2U, 3U}) {
        EXPECT_EQ(icon("noise"), nullptr);
        EXPECT_EQ(registeredAs(type), nullptr);
    }
    write("noise.icns", good);
    const IconRef mended = icon("noise");
    EXPECT_TRUE(mended) << "a failure isn't kept";
    EXPECT_EQ(registeredAs(4), mended);
    EXPECT_EQ(red->images().atLeast(32).width(), 32) << "the file is read when it is registered";

    iconUtilCleanup();
    EXPECT_EQ(registeredAs(1), nullptr);
    EXPECT_EQ(registeredAs(4), nullptr);
}

} // namespace
