#include "platform/CoreFoundation/CFBundle.h"

#include "tests/platform/CoreFoundation/TestFiles.h"

#include <gmock/gmock.h>

namespace fs = std::filesystem;

namespace {

class CFBundleTest : public testing::Test {
protected:
    CFBundleTest() {
        fs::remove_all(folder_);
        writeFile(contents_ / "Info.plist",
                  dictionaryFile("<key>CFBundleIdentifier</key><string>org.example.test</string>"
                                 "<key>CFBundleExecutable</key><string>code.so</string>"));
        writeFile(contents_ / "Resources/list.plist", "x");
        writeFile(contents_ / "Resources/Pointers/a+1x2.png", "x");
        writeFile(contents_ / "secret", "x");
    }

    CFRef<CFBundle> open(const fs::path& path) {
        return CFBundleCreate(CFURLCreateFromFileSystemRepresentation(path.c_str(), true).get());
    }

    fs::path folder_ = makeSandboxFolder("bundles");
    fs::path contents_ = folder_ / "Test.app/Contents";
};

TEST_F(CFBundleTest, OneFolderIsOneBundleForAsLongAsItLives) {
    fs::create_directory_symlink(folder_ / "Test.app", folder_ / "Link.app");
    {
        const auto bundle = open(folder_ / "Test.app");
        ASSERT_TRUE(bundle);
        EXPECT_EQ(open(folder_ / "Link.app").get(), bundle.get());
        EXPECT_EQ(CFBundleGetBundleWithIdentifier(CFSTR("org.example.test")), bundle.get());
        EXPECT_EQ(CFBundleGetBundleWithIdentifier(CFSTR("org.example.other")), nullptr);
    }
    EXPECT_EQ(CFBundleGetBundleWithIdentifier(CFSTR("org.example.test")), nullptr);
    EXPECT_EQ(CFBundleGetMainBundle(), nullptr);
}

TEST_F(CFBundleTest, FolderWithoutSoundInfoIsNoBundle) {
    for (const std::string& info :
         {std::string(), std::string("<plist><array/></plist>"), dictionaryFile("<key>a</key>")}) {
        writeFile(folder_ / "Bad.app/Contents/Info.plist", info);
        EXPECT_FALSE(open(folder_ / "Bad.app")) << info;
    }
    EXPECT_FALSE(open(folder_ / "None.app"));
}

TEST_F(CFBundleTest, ResourcesAreFoundAndNothingOutside) {
    const auto bundle = open(folder_ / "Test.app");

    const struct {
        const char *name, *type, *subdirectory, *found;
    } cases[] = {
        {"list", "plist", nullptr, "list.plist"},
        {"list.plist", nullptr, nullptr, "list.plist"},
        {"LIST", "Plist", nullptr, "list.plist"},
        {"a+1x2", "png", "Pointers", "Pointers/a+1x2.png"},
        {"Pointers", nullptr, nullptr, "Pointers"},
        {"list", nullptr, nullptr, nullptr},
        {"../secret", nullptr, nullptr, nullptr},
        {"secret", nullptr, "..", nullptr},
        {"secret", nullptr, "Pointers/../..", nullptr},
        {"/etc/passwd", nullptr, nullptr, nullptr},
        {"passwd", nullptr, "/etc", nullptr},
        {nullptr, "plist", nullptr, nullptr},
    };

    for (const auto& row : cases) {
        const auto text = [](const char* ascii) { return ascii ? CFSTR(ascii) : nullptr; };
        const auto url = CFBundleCopyResourceURL(bundle.get(), text(row.name), text(row.type),
                                                 text(row.subdirectory));
        const fs::path expected = row.found ? contents_ / "Resources" / row.found : fs::path();
        EXPECT_EQ(url ? url->path() : "", expected) << (row.name ? row.name : "null");
    }
}

TEST_F(CFBundleTest, ExecutableIsLoadedOrTheReasonIsGiven) {
    const auto bundle = open(folder_ / "Test.app");
    std::string error;
    EXPECT_FALSE(CFBundleLoadExecutable(bundle.get(), &error));
    EXPECT_THAT(error, testing::HasSubstr("Test.app"));

    writeFile(contents_ / "Linux/code.so", "not a library");
    EXPECT_FALSE(CFBundleLoadExecutable(bundle.get(), &error));
    EXPECT_THAT(error, testing::HasSubstr("code.so"));

    fs::copy_file(TEST_BUNDLE_CODE, contents_ / "Linux/code.so",
                  fs::copy_options::overwrite_existing);
    EXPECT_TRUE(CFBundleLoadExecutable(bundle.get(), &error)) << error;
    EXPECT_STREQ(std::getenv("KORVEX_TEST_BUNDLE"), "loaded");
}

} // namespace
