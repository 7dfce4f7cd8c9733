#include "platform/CoreServices/LaunchServices.h"
#include "tests/support/TestApplications.h"

#include <gmock/gmock.h>

namespace fs = std::filesystem;

namespace {

constexpr OSType kCode = fourCharCode("TEST");

class InstalledApplicationsTest : public ApplicationsTest {
protected:
    /// The path of the application, relative to the data folders; empty when none is found.
    std::string find(OSType creator, const char* identifier, const char* name = nullptr) {
        const auto text = [](const char* ascii) { return ascii ? CFSTR(ascii) : nullptr; };
        FSRef ref;
        CFRef<CFURL> url;
        const OSStatus status =
            LSFindApplicationForInfo(creator, text(identifier), text(name), &ref, &url);
        EXPECT_EQ(status, url ? noErr : kLSApplicationNotFoundErr);
        if (!url)
            return "";
        EXPECT_EQ(url->path(), ref.path);
        EXPECT_EQ(url->isDirectory(), fs::is_directory(ref.path));
        return fs::relative(ref.path, folder_);
    }
};

TEST_F(InstalledApplicationsTest, AllCriteriaThatAreGivenMustFit) {
    installBundle(near_, "Keys.app", "TEST", "org.example.keys");
    installBundle(near_, "Other.app", "OTHR", "org.example.other");
    installBundle(far_, "Late.app", "TEST", "org.example.late");
    writeFile(near_ / "applications/Bad.app/Contents/Info.plist", "not a list");
    writeFile(near_ / "applications/notes.txt", "x");
    installEntry(far_, "org.example.entry");
    installEntry(far_, "org.example.keys");

    const struct {
        OSType creator;
        const char *identifier, *name;
        std::string found;
    } cases[] = {
        {kCode, "org.example.keys", nullptr, "near/applications/Keys.app"},
        {kCode, "org.example.keys", "Keys.app", "near/applications/Keys.app"},
        {kCode, "org.example.keys", "Other.app", ""},
        {kCode, "org.example.other", nullptr, ""},
        {kCode, nullptr, nullptr, "near/applications/Keys.app"},
        {kCode, nullptr, "Late.app", "far/applications/Late.app"},
        {0, "org.example.other", nullptr, "near/applications/Other.app"},
        {0, nullptr, "Other.app", "near/applications/Other.app"},
        {kCode, "org.example.entry", nullptr, "far/applications/org.example.entry.desktop"},
        {0, nullptr, "org.example.entry.desktop", ""},
        {kCode, "org.example.none", nullptr, ""},
        {kCode, "../applications/org.example.entry", nullptr, ""},
        {0, nullptr, nullptr, ""},
    };

    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.identifier ? row.identifier : "-") + ' ' +
                     (row.name ? row.name : "-"));
        EXPECT_EQ(find(row.creator, row.identifier, row.name), row.found);
    }
}

TEST_F(InstalledApplicationsTest, EntriesSayWhetherTheyAreInstalled) {
    const std::string entry = "home/applications/org.example.keys.desktop";

    const struct {
        std::string keys;
        bool installed;
    } cases[] = {
        {"", true},
        {"NoDisplay=true\n", true},
        {"Hidden=false\n", true},
        {" Hidden = true \r\n", false},
        {"Hidden[de]=true\n", true},
        {"# Hidden=true\n", true},
        {"[Desktop Action x]\nHidden=true\n", true},
        {"TryExec=sh\n", true},
        {"TryExec=/bin/sh\n", true},
        {"TryExec=/nowhere/sh\n", false},
        {"TryExec=there is no such program\n", false},
    };

    for (const auto& row : cases) {
        installEntry(home_, "org.example.keys", row.keys);
        EXPECT_EQ(find(kCode, "org.example.keys"), row.installed ? entry : "") << row.keys;
    }
    writeFile(folder_ / entry, "[Desktop Entry]\nType=Link\n");
    EXPECT_EQ(find(kCode, "org.example.keys"), "");
}

TEST_F(InstalledApplicationsTest, AnEarlierFoldersEntryHidesLaterOnes) {
    installEntry(near_, "org.example.keys");
    EXPECT_EQ(find(kCode, "org.example.keys"), "near/applications/org.example.keys.desktop");
    installEntry(home_, "org.example.keys", "Hidden=true\n");
    EXPECT_EQ(find(kCode, "org.example.keys"), "");
    installBundle(far_, "Keys.app", "TEST", "org.example.keys");
    EXPECT_EQ(find(kCode, "org.example.keys"), "far/applications/Keys.app");
}

/// Each change is seen at once: right after one before it, in the same step of the file system's
/// clock, and after a while, when what was read is kept.
TEST_F(InstalledApplicationsTest, FollowsInstallationAndRemoval) {
    const fs::path folder = near_ / "applications", bundle = folder / "Keys.app";
    const fs::path info = bundle / "Contents/Info.plist";
    for (const bool waits : {false, true}) {
        SCOPED_TRACE(waits);
        const auto step = [&](const char* what, const std::string& found,
                              const fs::path& settling = {}) {
            if (waits && !settling.empty())
                waitUntilSettled(settling);
            EXPECT_EQ(find(kCode, "org.example.keys"), found) << what;
            EXPECT_EQ(find(kCode, "org.example.keys"), found) << what << ", again";
        };
        fs::remove_all(folder_);
        step("no folders", "");
        fs::create_directories(bundle);
        step("bundle without content", "", folder);
        installBundle(near_, "Keys.app", "OTHR", "org.example.keys");
        step("another creator", "", info);
        installBundle(near_, "Keys.app", "TEST", "org.example.keys");
        step("installed", "near/applications/Keys.app", info);
        fs::rename(bundle, folder / "Moved.app");
        step("renamed", "near/applications/Moved.app");
        installEntry(home_, "org.example.keys");
        step("entry as well", "home/applications/org.example.keys.desktop");
        fs::remove(home_ / "applications/org.example.keys.desktop");
        step("entry removed", "near/applications/Moved.app", folder);
        fs::remove_all(folder / "Moved.app");
        step("removed", "");
    }
}

} // namespace
