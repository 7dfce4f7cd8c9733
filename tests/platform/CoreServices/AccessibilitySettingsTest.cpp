#include "platform/CoreServices/LaunchServices.h"
#include "tests/platform/CoreFoundation/TestFiles.h"

#include <QTest>
#include <gtest/gtest.h>

namespace fs = std::filesystem;

namespace {

TEST(AccessibilitySettingsTest, OpensThoseOfTheDesktopThatIsRunning) {
    const struct {
        const char *desktop, *installed, *started; ///< empty: nothing
    } cases[] = {
        {"ubuntu:GNOME", "gnome-control-center", "gnome-control-center universal-access\n"},
        {"KDE", "systemsettings5", "systemsettings5 kcm_access\n"},
        {"XFCE", "xfce4-accessibility-settings", "xfce4-accessibility-settings \n"},
        {"MATE", "mate-at-properties", "mate-at-properties \n"},
        {"X-Cinnamon", "cinnamon-settings", "cinnamon-settings accessibility\n"},
        {"GNOME", "systemsettings", ""},
        {"", "gnome-control-center", ""}};

    const fs::path programs = makeSandboxFolder("bin"), log = programs / "log";
    setenv("PATH", (programs.string() + ":/bin").c_str(), 1);
    const auto pane = CFURLCreateFromFileSystemRepresentation(
        "/System/Library/PreferencePanes/UniversalAccessPref.prefPane", true);
    for (const auto& test : cases) {
        SCOPED_TRACE(test.desktop + std::string(", ") + test.installed);
        fs::remove_all(programs);
        writeFile(programs / test.installed,
                  "#!/bin/sh\necho \"${0##*/} $*\" > log.new; mv log.new " + log.string() + "\n");
        fs::permissions(programs / test.installed, fs::perms::owner_all);
        setenv("XDG_CURRENT_DESKTOP", test.desktop, 1);
        fs::current_path(programs);
        const bool starts = LSOpenCFURLRef(pane.get(), nullptr) == noErr;
        EXPECT_EQ(starts, *test.started != '\0');
        EXPECT_TRUE(!starts || QTest::qWaitFor([&] { return fs::exists(log); }, 10'000));
        EXPECT_EQ(readFile(log), test.started);
    }
}

} // namespace
