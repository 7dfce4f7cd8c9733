// SPDX-License-Identifier: MIT
#include "platform/CoreFoundation/CFBundle.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

namespace {

class CFBundleTest : public testing::Test {
protected:
    CFBundleTest() {
        fs::remove_all(folder_);
        writeFile(
            contents_ / "Info.plist",
            "<plist><dict><key>CFBundleIdentifier</key><string>org.test</string></dict></plist>");
        for (const char* file : {"Resources/list.plist", "Resources/Pointers/a+1x2.png", "secret"})
            writeFile(contents_ / file, "x");
    }

    static CFRef<CFBundle> open(const fs::path& path) {
        return CFBundleCreate(CFURLCreateFromFileSystemRepresentation(path.c_str(), true).get());
    }

    fs::path folder_ = makeSandboxFolder("bundles"), contents_ = folder_ / "Test.app/Contents";
};

TEST_F(CFBundleTest, ResourcesAreFoundAndNothingOutside) {
    const auto bundle = open(folder_ / "Test.app");

    const struct {
        const char *name, *type, *subdirectory, *found;
    } cases[] = {{"list", "plist", nullptr, "list.plist"},
                 {"LIST", "Plist", nullptr, "list.plist"},
                 {"a+1x2", "png", "Pointers", "Pointers/a+1x2.png"},
                 {"../secret", nullptr, nullptr, nullptr},
                 {"secret", nullptr, "Pointers/../..", nullptr},
                 {"passwd", nullptr, "/etc", nullptr}};

    for (const auto& row : cases) {
        const auto url =
            CFBundleCopyResourceURL(bundle.get(), constantText(row.name), constantText(row.type),
                                    constantText(row.subdirectory));
        const fs::path expected = row.found ? contents_ / "Resources" / row.found : fs::path();
        EXPECT_EQ(url ? url->path() : "", expected) << row.name;
    }
}

} // namespace
