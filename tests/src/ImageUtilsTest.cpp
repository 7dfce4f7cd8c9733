#include "platform/IconServices/IconImages.h"
#include "src/imageutil.h"
#include "tests/support/TestBundle.h"
#include "tests/support/TestIcons.h"

#include <gmock/gmock.h>

namespace fs = std::filesystem;

namespace {

TEST(ImageUtilsTest, LoadsPNGsFromAnyFolderOfTheResources) {
    TestBundle bundle;
    bundle.write("top.png", pngBytes(3, 2, Qt::red));
    bundle.write("Pointers/sub.png", pngBytes(5, 4, Qt::red));
    bundle.write("damaged.png", pngBytes(9, 9, Qt::red).substr(0, 50));
    bundle.write("empty.png", "");
    bundle.write("huge.png", pngClaim(100'000, 100'000));
    bundle.write("folder.png/x", "");

    const struct {
        const char *subfolder, *name;
        QSize size; // none when nothing is loaded
    } cases[] = {
        {nullptr, "top", {3, 2}}, {"Pointers", "sub", {5, 4}}, {"Pointers", "top", {}},
        {nullptr, "sub", {}},     {nullptr, "top.png", {}},    {nullptr, "damaged", {}},
        {nullptr, "empty", {}},   {nullptr, "huge", {}},       {nullptr, "folder", {}},
        {nullptr, nullptr, {}},   {"..", "top", {}},
    };

    for (const auto& row : cases) {
        const auto text = [](const char* ascii) { return ascii ? CFSTR(ascii) : nullptr; };
        const auto image = imageUtilLoadPNG(bundle.get(), text(row.subfolder), text(row.name));
        EXPECT_EQ(image ? image->image().size() : QSize(), row.size) << row.name;
    }
    EXPECT_FALSE(imageUtilLoadPNG(nullptr, nullptr, CFSTR("top")));
}

TEST(ImageUtilsTest, IconSuitesComeFromIconFiles) {
    const long openBefore = countOpenFiles();
    TestBundle bundle;
    bundle.write("good.icns", pngFamily({{16, Qt::red}, {64, Qt::blue}}));
    bundle.write("zero.icns", "");
    bundle.write("noise.icns", "icns\x01\x02\x03");
    const auto suite = imageUtilGetBundlesResourceIcon(bundle.get(), CFSTR("good"));
    ASSERT_TRUE(suite);
    EXPECT_EQ(suite->images().atLeast(64).pixelColor(0, 0), QColor(Qt::blue));
    EXPECT_EQ(suite->retainCount(), 1);
    for (const char* name : {"zero", "noise", "none"}) {
        EXPECT_FALSE(imageUtilGetBundlesResourceIcon(bundle.get(), CFSTR(name))) << name;
        EXPECT_FALSE(imageUtilGetIconFile(bundle.resource(std::string(name) + ".icns").get()));
    }
    EXPECT_FALSE(imageUtilGetBundlesResourceIcon(bundle.get(), nullptr));
    EXPECT_FALSE(imageUtilGetBundlesResourceIcon(nullptr, CFSTR("good")));
    EXPECT_EQ(countOpenFiles(), openBefore);
}

/// Runs this very test again, as a copy of the program that lies in a bundle.
int runInBundle(TestBundle& bundle) {
    const fs::path program = bundle.resources().parent_path() / "Linux/test";
    fs::create_directories(program.parent_path());
    fs::copy_file("/proc/self/exe", program);
    const std::string filter =
        testing::UnitTest::GetInstance()->current_test_info()->test_suite_name();
    setenv("TEST_IN_BUNDLE", "1", 1);
    return std::system(("'" + program.string() + "' --gtest_filter=" + filter + ".* >&2").c_str());
}

TEST(MainBundleTest, HasPicturesAndIcons) {
    if (!std::getenv("TEST_IN_BUNDLE")) {
        TestBundle bundle;
        bundle.write("picture.pict", std::string(512, 'h') + "picture");
        bundle.write("short.pict", std::string(511, 'h'));
        bundle.write("icon.icns", pngFamily({{16, Qt::red}}));
        EXPECT_FALSE(imageUtilGetResourcePict(CFSTR("picture"))) << "no main bundle";
        EXPECT_FALSE(imageUtilGetResourceIcon(CFSTR("icon")));
        EXPECT_EQ(runInBundle(bundle), 0);
        return;
    }
    ASSERT_TRUE(CFBundleGetMainBundle());
    const Handle picture = imageUtilGetResourcePict(CFSTR("picture"));
    ASSERT_TRUE(picture);
    EXPECT_EQ(std::string(*picture, *picture + GetHandleSize(picture)), "picture");
    EXPECT_FALSE(imageUtilGetResourcePict(CFSTR("short")));
    EXPECT_FALSE(imageUtilGetResourcePict(CFSTR("none")));
    EXPECT_TRUE(imageUtilGetResourceIcon(CFSTR("icon")));
    EXPECT_FALSE(imageUtilGetResourceIcon(CFSTR("none")));
}

} // namespace
