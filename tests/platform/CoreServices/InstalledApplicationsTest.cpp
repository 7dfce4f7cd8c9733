// SPDX-License-Identifier: MIT
#include "platform/CoreServices/LaunchServices.h"
#include "tests/support/TestApplications.h"

namespace {

constexpr OSType kCode = fourCharCode("TEST");

class InstalledApplicationsTest : public ApplicationsTest {
protected:
    /// The application's path, relative to the data folders. Empty when none is found.
    std::string find(OSType creator = kCode, const char* identifier = "org.keys",
                     const char* name = nullptr) {
        FSRef ref;
        CFRef<CFURL> url;
        const OSStatus status = LSFindApplicationForInfo(creator, constantText(identifier),
                                                         constantText(name), &ref, &url);
        EXPECT_EQ(status, url ? noErr : kLSApplicationNotFoundErr);
        EXPECT_EQ(url ? url->path() : "", ref.path);
        return url ? fs::relative(ref.path, folder_).string() : "";
    }
};

TEST_F(InstalledApplicationsTest, AllCriteriaThatAreGivenMustFit) {
    installBundle(near_, "Keys.app", "TEST", "org.keys");
    installBundle(near_, "Other.app", "OTHR", "org.other");
    installBundle(far_, "Late.app", "TEST", "org.late");
    writeFile(near_ / "applications/Bad.app/Contents/Info.plist", "not a list");
    installEntry(far_, "org.entry");
    installEntry(far_, "org.keys");
    EXPECT_EQ(find(), "near/applications/Keys.app");
    EXPECT_EQ(find(kCode, "org.other"), "");
    EXPECT_EQ(find(kCode, nullptr, "Late.app"), "far/applications/Late.app");
    EXPECT_EQ(find(0, nullptr, "Other.app"), "near/applications/Other.app");
    EXPECT_EQ(find(kCode, "org.entry"), "far/applications/org.entry.desktop");
    EXPECT_EQ(find(kCode, "../applications/org.entry"), "");
}

TEST_F(InstalledApplicationsTest, EntriesSayWhetherTheyAreInstalledAndHideLaterFolders) {
    installEntry(near_, "org.keys");
    for (const auto& [keys, installed] : {std::pair(" Hidden = true \r\n", false),
                                          {"Hidden[de]=true\n", true},
                                          {"[Desktop Action x]\nHidden=true\n", true},
                                          {"TryExec=sh\n", true},
                                          {"TryExec=/nowhere/sh\n", false}}) {
        installEntry(home_, "org.keys", keys);
        EXPECT_EQ(find(), installed ? "home/applications/org.keys.desktop" : "") << keys;
    }
}

} // namespace
